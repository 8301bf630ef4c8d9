# What scripts/package makes with CPack: an archive for either system, with the example programs, and
# one with the debug information; or, when PELMORA_DEBIAN says so, Debian packages.
include(GNUInstallDirs)
option(PELMORA_DEBIAN "CPack makes Debian packages, instead of archives" OFF)
set(PELMORA_PACKAGE_EXTRA "" CACHE PATH
  "Folder with what this build does not make: archive/ and debug/ are added to those two archives")

set(CPACK_PACKAGE_NAME Pelmora)
set(CPACK_PACKAGE_VENDOR "The Pelmora maintainers")
set(CPACK_PACKAGE_CONTACT ${CPACK_PACKAGE_VENDOR})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_SOURCE_DIR}/build/packages)
set(CPACK_VERBATIM_VARIABLES ON)

if(PELMORA_DEBIAN)
  include(${CMAKE_CURRENT_LIST_DIR}/debianPackages.cmake)
else()
  include(${CMAKE_CURRENT_LIST_DIR}/archives.cmake)
endif()
include(CPack)
