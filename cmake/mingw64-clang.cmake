# Windows, x86-64, with clang on the headers and libraries of the mingw-w64 g++: a second opinion on
# the same code.
include(${CMAKE_CURRENT_LIST_DIR}/mingw64.cmake)

set(PELMORA_GCC ${CMAKE_CXX_COMPILER})
execute_process(
  COMMAND ${PELMORA_GCC} -print-file-name=include
  OUTPUT_VARIABLE gcc_include OUTPUT_STRIP_TRAILING_WHITESPACE)
get_filename_component(gcc_folder ${gcc_include} DIRECTORY)

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_FLAGS_INIT "-nostdinc++ -isystem ${gcc_folder}/include/c++ \
-isystem ${gcc_folder}/include/c++/x86_64-w64-mingw32")
foreach(kind EXE SHARED)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-L${gcc_folder} -Wno-unused-command-line-argument")
endforeach()
