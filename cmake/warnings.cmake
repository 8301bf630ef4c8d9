# Flags of every target of this project, and of none that links to it.
add_library(pelmora_warnings INTERFACE)
set(flags
  -Wall -Wextra -Wconversion -Wshadow
  # A product and a sum fused into one rounding would give other digits on processors that can.
  -ffp-contract=off)
if(PELMORA_WARNINGS_AS_ERRORS)
  list(APPEND flags -Werror)
endif()
# Compilers of resources know none of them.
target_compile_options(pelmora_warnings INTERFACE "$<$<COMPILE_LANGUAGE:C,CXX>:${flags}>")
