# A package for each library, because several versions of one are installed at once; and one each for
# developing with both, for reading and for debugging. The folder of libraries is Debian's own when
# CMAKE_INSTALL_LIBDIR is lib/TRIPLET.
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${CPACK_PACKAGE_VENDOR} <maintainers@pelmora.invalid>") # has no address yet
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)

macro(pelmora_debian_package component name section description)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${PROJECT_DESCRIPTION}, ${description}")
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE RENAME copyright
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component} EXCLUDE_FROM_ALL)
endmacro()

# The number in a library's name says which programs it serves.
macro(pelmora_debian_library component name description)
  get_target_property(so_version ${component} SOVERSION)
  pelmora_debian_package(${component} ${name}${so_version} libs "${description}")
  list(APPEND libraries "${name}${so_version} (= ${PROJECT_VERSION})")
  install(TARGETS ${component} LIBRARY COMPONENT ${component} NAMELINK_SKIP EXCLUDE_FROM_ALL)
  set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS ON)
  # Loaded when something is downloaded, which nothing in the library's file tells.
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "libcurl4 (>= 7.87)")
endmacro()

set(CPACK_COMPONENTS_ALL "")
set(libraries "")
pelmora_debian_library(pelmora libpelmora "for C++")
pelmora_debian_library(pelmora_c libpelmora-c "for C")
pelmora_debian_package(Development libpelmora-dev libdevel "headers and CMake package")
pelmora_debian_package(Documentation libpelmora-doc doc "guides, reference and examples")
pelmora_debian_package(Debug libpelmora-dbg debug "debug information")
list(JOIN libraries ", " libraries)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${libraries}")
set(CPACK_DEBIAN_DEBUG_PACKAGE_DEPENDS "${libraries}")
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
