# A Windows program made with g++ needs the compiler's run-time DLLs beside itself. The C++ library
# is shared, not linked in, because the process has one global std::locale that this library and its
# callers both use.
#
# The DLLs are imported targets that Pelmora::pelmora brings along, so that $<TARGET_RUNTIME_DLLS>
# of a program names them; PelmoraConfig.cmake makes the same targets of the installed files.
set(pelmora_mingw_dlls "")
set(pelmora_mingw_targets "")
if(MINGW)
  if(NOT PELMORA_GCC) # whose libraries are used, if another compiler works with them
    set(PELMORA_GCC ${CMAKE_CXX_COMPILER})
  endif()
  function(pelmora_compiler_file variable name)
    execute_process(
      COMMAND ${PELMORA_GCC} -print-file-name=${name}
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(${variable} "${path}" PARENT_SCOPE)
  endfunction()
  set(pelmora_libgcc_8 libgcc_s_seh-1)
  set(pelmora_libgcc_4 libgcc_s_dw2-1)
  set(pelmora_libgcc ${pelmora_libgcc_${CMAKE_SIZEOF_VOID_P}})
  foreach(pair libstdc++-6:libstdc++.dll.a ${pelmora_libgcc}:libgcc_s.a libwinpthread-1:libwinpthread.dll.a)
    string(REPLACE ":" ";" pair ${pair})
    list(GET pair 0 name)
    list(GET pair 1 import_library)
    pelmora_compiler_file(dll ${name}.dll)
    pelmora_compiler_file(import_library ${import_library})
    add_library(Pelmora::${name} SHARED IMPORTED GLOBAL)
    set_target_properties(Pelmora::${name} PROPERTIES
      IMPORTED_LOCATION "${dll}"
      IMPORTED_IMPLIB "${import_library}")
    list(APPEND pelmora_mingw_dlls "${dll}")
    list(APPEND pelmora_mingw_targets Pelmora::${name})
  endforeach()
  if(CMAKE_RUNTIME_OUTPUT_DIRECTORY)
    file(COPY ${pelmora_mingw_dlls} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
  endif()
endif()
