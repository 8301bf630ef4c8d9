# What is installed, by components: Runtime (what programs need to run), Development (what it takes to
# build them), Documentation, and Debug (the debug information, if PELMORA_SPLIT_DEBUG took it out).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(libraries pelmora pelmora_c)
if(PELMORA_C_ONLY)
  set(libraries pelmora_c)
  set(pelmora_mingw_dlls "")
  set(pelmora_mingw_targets "")
endif()
set(package ${PROJECT_BINARY_DIR}/generated/package)

# Where GDB looks for it.
set(debug_destination ${CMAKE_INSTALL_LIBDIR}/.debug)
if(WIN32)
  set(debug_destination ${CMAKE_INSTALL_BINDIR})
elseif(PELMORA_DEBIAN)
  set(debug_destination lib/debug/usr/${CMAKE_INSTALL_LIBDIR})
endif()

foreach(library ${libraries})
  get_target_property(header_sets ${library} INTERFACE_HEADER_SETS)
  list(TRANSFORM header_sets REPLACE "(.+)" "FILE_SET;\\1;COMPONENT;Development")
  install(TARGETS ${library} EXPORT PelmoraTargets
    RUNTIME COMPONENT Runtime
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE COMPONENT Development
    ${header_sets})
  if(PELMORA_SPLIT_DEBUG)
    install(FILES ${pelmora_debug_folder}/$<TARGET_FILE_NAME:${library}>.debug
      DESTINATION ${debug_destination} COMPONENT Debug)
  endif()
endforeach()
install(FILES ${pelmora_c_link_files}
  DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
pelmora_strip_files(pelmora_mingw_dlls)
install(FILES ${pelmora_mingw_dlls} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)

# find_package(Pelmora)
set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/Pelmora)
set(pelmora_link_file $<TARGET_LINKER_FILE_NAME:pelmora>)
install(EXPORT PelmoraTargets NAMESPACE Pelmora:: DESTINATION ${destination} COMPONENT Development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/PelmoraConfig.cmake.in
  ${package}/PelmoraConfig.cmake.in
  INSTALL_DESTINATION ${destination}
  PATH_VARS CMAKE_INSTALL_BINDIR CMAKE_INSTALL_LIBDIR)
file(GENERATE
  OUTPUT ${package}/PelmoraConfig.cmake
  INPUT ${package}/PelmoraConfig.cmake.in)
write_basic_package_version_file(${package}/PelmoraConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${package}/PelmoraConfig.cmake ${package}/PelmoraConfigVersion.cmake
  DESTINATION ${destination} COMPONENT Development)

# pkg-config, with paths that hold wherever the whole folder is moved
set(destination ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH to_prefix /${destination} /)
string(REGEX REPLACE "/$" "" to_prefix "${to_prefix}")
foreach(library ${libraries})
  get_target_property(name ${library} OUTPUT_NAME)
  set(description "${PROJECT_DESCRIPTION}, for C")
  set(flags "")
  set(requires "")
  set(more_libraries "")
  if(library STREQUAL pelmora)
    set(name pelmora)
    set(description "${PROJECT_DESCRIPTION}, for C++20")
    if(pelmora_is_static)
      set(flags " -DPELMORA_STATIC")
      set(more_libraries -pthread ${pelmora_system_libraries})
      if("LibXml2::LibXml2" IN_LIST more_libraries)
        list(REMOVE_ITEM more_libraries LibXml2::LibXml2)
        set(requires libxml-2.0)
      endif()
      list(TRANSFORM more_libraries PREPEND "-l" REGEX "^[^-]")
      list(JOIN more_libraries " " more_libraries)
    endif()
  endif()
  configure_file(${PROJECT_SOURCE_DIR}/cmake/pkgConfig.pc.in ${package}/${name}.pc @ONLY)
  install(FILES ${package}/${name}.pc DESTINATION ${destination} COMPONENT Development)
endforeach()

# The site is there when scripts/docs has made it.
install(FILES
  ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  ${PROJECT_SOURCE_DIR}/LICENSE
  ${PROJECT_SOURCE_DIR}/SECURITY.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/docs/html
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation OPTIONAL)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples ${PROJECT_SOURCE_DIR}/po
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation)
