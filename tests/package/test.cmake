# Installs the library that was built in LIBRARY_BUILD into the folder WORK, and builds there the
# project beside this file. Then configures a project that has the library as a part of itself, and
# sees that it gets no targets to build or install that it did not ask for.
function(run)
  execute_process(COMMAND ${ARGN}
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(status)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
set(options -G Ninja "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
if(TOOLCHAIN)
  set(options -G Ninja "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
endif()
run(${CMAKE_COMMAND} --install ${LIBRARY_BUILD} --prefix ${WORK}/installed)
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK}/program ${options}
  "-DCMAKE_PREFIX_PATH=${WORK}/installed")
run(${CMAKE_COMMAND} --build ${WORK}/program)

cmake_path(SET source NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../..)
file(WRITE ${WORK}/host/CMakeLists.txt "
cmake_minimum_required(VERSION 3.25)
project(Host LANGUAGES CXX)
add_subdirectory(${source} pelmora)
get_property(folders DIRECTORY ${source} PROPERTY SUBDIRECTORIES)
foreach(folder ${source} \${folders})
  get_property(targets DIRECTORY \${folder} PROPERTY BUILDSYSTEM_TARGETS)
  list(FILTER targets EXCLUDE REGEX ^pelmora)
  if(targets)
    message(FATAL_ERROR \"not prefixed: \${targets}\")
  endif()
endforeach()
")
run(${CMAKE_COMMAND} -S ${WORK}/host -B ${WORK}/host/build ${options} -DBUILD_SHARED_LIBS=OFF)
run(${CMAKE_COMMAND} --install ${WORK}/host/build --prefix ${WORK}/host/installed)
file(GLOB leaked ${WORK}/host/installed/*)
if(leaked)
  message(FATAL_ERROR "a host's installation gets ${leaked}")
endif()
