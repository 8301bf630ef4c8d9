# Of the checkout that this folder is in: vcpkg install pelmora --overlay-ports=packages/vcpkg
cmake_path(SET source NORMALIZE "${CURRENT_PORT_DIR}/../..")

vcpkg_check_linkage(ONLY_DYNAMIC_LIBRARY) # as the library of the C interface always is
vcpkg_cmake_configure(
  SOURCE_PATH "${source}"
  OPTIONS
    -DPELMORA_TESTS=OFF
    -DPELMORA_EXAMPLES=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME Pelmora CONFIG_PATH lib/cmake/Pelmora)
vcpkg_fixup_pkgconfig()

file(REMOVE_RECURSE
  "${CURRENT_PACKAGES_DIR}/debug/include"
  "${CURRENT_PACKAGES_DIR}/debug/share"
  "${CURRENT_PACKAGES_DIR}/share/doc")
vcpkg_install_copyright(FILE_LIST "${source}/LICENSE")
