# A Windows program of this project finds the compiler's run-time DLLs beside itself, as after
# installation. The C++ library is shared, not linked in, because the process has one global
# std::locale that the library and its callers both use.
set(pelmora_runtime_dlls "")
if(MINGW)
  if(NOT PELMORA_GCC) # whose libraries are used, if another compiler works with them
    set(PELMORA_GCC ${CMAKE_CXX_COMPILER})
  endif()
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(
      COMMAND ${PELMORA_GCC} -print-file-name=${dll}
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND pelmora_runtime_dlls "${path}")
  endforeach()
  if(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
    file(COPY ${pelmora_runtime_dlls} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endif()
endif()
