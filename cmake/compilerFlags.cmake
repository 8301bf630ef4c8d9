# Flags of this project's own targets, and of none that links to them.
add_library(pelmora_warnings INTERFACE)
if(MSVC)
  set(pelmora_warning_flags /W4 /permissive- /utf-8 /Zc:__cplusplus)
  # A product and a sum fused into one rounding would give other digits on processors that can.
  set(pelmora_arithmetic_flags /fp:precise)
  set(pelmora_language_flags "")
else()
  set(pelmora_warning_flags -Wall -Wextra -Wconversion -Wshadow)
  set(pelmora_arithmetic_flags -ffp-contract=off) # for the same reason
  # The library's own sources are standard C++, which any compiler is to take.
  set(pelmora_language_flags -Wpedantic)
  if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    list(APPEND pelmora_language_flags -Wgnu -Wmicrosoft)
  endif()
endif()
if(PELMORA_WARNINGS_AS_ERRORS)
  list(APPEND pelmora_warning_flags $<IF:$<BOOL:${MSVC}>,/WX,-Werror>)
endif()
# Compilers of resources know none of them.
target_compile_options(pelmora_warnings INTERFACE
  "$<$<COMPILE_LANGUAGE:C,CXX>:${pelmora_warning_flags}>")
