# The installed package: library, public headers, and what find_package(Pelmora) reads.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(pelmora_link_file $<TARGET_LINKER_FILE_NAME:pelmora>)
set(package ${PROJECT_BINARY_DIR}/generated/package)
set(destination ${CMAKE_INSTALL_LIBDIR}/cmake/Pelmora)

install(TARGETS pelmora EXPORT PelmoraTargets FILE_SET HEADERS FILE_SET generated)
install(TARGETS pelmora_c EXPORT PelmoraTargets FILE_SET HEADERS)
install(FILES ${pelmora_c_link_files} DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${pelmora_mingw_dlls} DESTINATION ${CMAKE_INSTALL_BINDIR})
install(EXPORT PelmoraTargets NAMESPACE Pelmora:: DESTINATION ${destination})
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
  DESTINATION ${destination})
