# With PELMORA_SPLIT_DEBUG, debug information is taken out of what is built, into a file by which
# debuggers find it from the stripped one: release builds are small and can be debugged all the same.
set(pelmora_debug_folder ${PROJECT_BINARY_DIR}/debug)
if(PELMORA_SPLIT_DEBUG)
  file(MAKE_DIRECTORY ${pelmora_debug_folder} ${PROJECT_BINARY_DIR}/stripped)
endif()

# pelmora_split_debug(TARGET): makes debug/FILE.debug of the target's FILE.
function(pelmora_split_debug target)
  get_target_property(type ${target} TYPE)
  if(PELMORA_SPLIT_DEBUG AND NOT type STREQUAL STATIC_LIBRARY)
    set(debug_file ${pelmora_debug_folder}/$<TARGET_FILE_NAME:${target}>.debug)
    add_custom_command(TARGET ${target} POST_BUILD
      COMMAND ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> ${debug_file}
      COMMAND ${CMAKE_OBJCOPY} --strip-unneeded --add-gnu-debuglink=${debug_file}
        $<TARGET_FILE:${target}>
      VERBATIM)
  endif()
endfunction()

# pelmora_strip_files(VARIABLE): replaces the files that VARIABLE lists by stripped copies.
function(pelmora_strip_files variable)
  if(PELMORA_SPLIT_DEBUG)
    set(copies "")
    foreach(file ${${variable}})
      cmake_path(GET file FILENAME name)
      set(copy ${PROJECT_BINARY_DIR}/stripped/${name})
      execute_process(COMMAND ${CMAKE_OBJCOPY} --strip-all ${file} ${copy}
        COMMAND_ERROR_IS_FATAL ANY)
      list(APPEND copies ${copy})
    endforeach()
    set(${variable} "${copies}" PARENT_SCOPE)
  endif()
endfunction()
