# What makes a fault of the library harder to exploit, for this project's own targets and for none
# that links to them; tests/checkHardening.py looks for it in what is built. It calculates nothing
# otherwise. Sanitizers check more, and do not go with it.
add_library(pelmora_hardening INTERFACE)
set(pelmora_hardening_libraries "")
string(TOUPPER "${CMAKE_BUILD_TYPE}" configuration)
set(flags "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${configuration}}")
if(NOT PELMORA_HARDENING OR flags MATCHES "-fsanitize")
  return()
endif()

include(CheckCXXSourceCompiles)
include(CheckPIESupported)
include(CMakePushCheckState)
check_pie_supported()

if(MSVC)
  # Stack protector, address space layout and data execution prevention are this compiler's own.
  target_compile_options(pelmora_hardening INTERFACE /guard:cf)
  target_link_options(pelmora_hardening INTERFACE /GUARD:CF)
  return()
endif()

target_compile_options(pelmora_hardening INTERFACE
  $<$<COMPILE_LANGUAGE:C,CXX>:-fstack-protector-strong>)
target_compile_definitions(pelmora_hardening INTERFACE _GLIBCXX_ASSERTIONS)

# It needs an optimising compiler; older ones and older C libraries have level 2 alone.
if(flags MATCHES "-O[123s]" AND NOT flags MATCHES "-O0")
  cmake_push_check_state()
  set(CMAKE_REQUIRED_FLAGS "-O2 -Werror -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=3")
  check_cxx_source_compiles("
    #include <cstdlib>
    #if __USE_FORTIFY_LEVEL + 0 < 3 && __MINGW_FORTIFY_LEVEL + 0 < 3
    #error
    #endif
    int main() {}"
    PELMORA_HAS_FORTIFY_3)
  cmake_pop_check_state()
  set(level $<IF:$<BOOL:${PELMORA_HAS_FORTIFY_3}>,3,2>)
  target_compile_options(pelmora_hardening INTERFACE
    $<$<COMPILE_LANGUAGE:C,CXX>:-U_FORTIFY_SOURCE$<SEMICOLON>-D_FORTIFY_SOURCE=${level}>)
endif()

if(WIN32)
  # The functions behind both, from the compiler's archive: another DLL beside the library is none
  # that its users should have to bring.
  set(pelmora_hardening_libraries -l:libssp.a)
  target_link_libraries(pelmora_hardening INTERFACE ${pelmora_hardening_libraries})
  target_link_options(pelmora_hardening INTERFACE
    LINKER:--dynamicbase,--nxcompat
    $<$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>:LINKER:--high-entropy-va>)
  # Control flow guard: mingw's g++ lacks it, clang has had it for this system since version 16.
  cmake_push_check_state()
  set(CMAKE_REQUIRED_FLAGS -mguard=cf)
  check_cxx_source_compiles("int main() {}" PELMORA_HAS_CONTROL_FLOW_GUARD)
  cmake_pop_check_state()
  if(PELMORA_HAS_CONTROL_FLOW_GUARD)
    target_compile_options(pelmora_hardening INTERFACE $<$<COMPILE_LANGUAGE:C,CXX>:-mguard=cf>)
    target_link_options(pelmora_hardening INTERFACE -mguard=cf)
  endif()
else()
  target_link_options(pelmora_hardening INTERFACE LINKER:-z,relro,-z,now,-z,noexecstack)
endif()
