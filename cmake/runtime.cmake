# A Windows program of this project finds the compiler's run-time DLLs beside itself, as after
# installation. The C++ library is shared, not linked in, because the process has one global
# std::locale that the library and its callers both use.
set(pelmora_runtime_dlls "")
if(MINGW)
  foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(
      COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND pelmora_runtime_dlls "${path}")
  endforeach()
  file(COPY ${pelmora_runtime_dlls} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()
