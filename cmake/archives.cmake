# ZIP for Windows, .tar.gz for Linux.
string(TOLOWER ${CMAKE_SYSTEM_NAME} system)
set(CPACK_PACKAGE_FILE_NAME Pelmora-${PROJECT_VERSION}-${system}-x64)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
else()
  set(CPACK_GENERATOR TGZ)
endif()

# The example programs, beside the libraries that they need.
if(PELMORA_EXAMPLES)
  set(programs c_infusion infusions scenario)
  if(WIN32)
    list(APPEND programs bedside workstation)
  endif()
  set_target_properties(${programs} PROPERTIES INSTALL_RPATH $ORIGIN/../${CMAKE_INSTALL_LIBDIR})
  install(TARGETS ${programs} COMPONENT Archive EXCLUDE_FROM_ALL)
  install(FILES ${pelmora_catalogue_files}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/pelmora/po COMPONENT Archive EXCLUDE_FROM_ALL)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/packages/${system}/README.md
  DESTINATION . COMPONENT Archive EXCLUDE_FROM_ALL)
foreach(component Archive Debug)
  if(PELMORA_PACKAGE_EXTRA)
    string(TOLOWER ${component} folder)
    install(DIRECTORY ${PELMORA_PACKAGE_EXTRA}/${folder}/
      DESTINATION . COMPONENT ${component} EXCLUDE_FROM_ALL OPTIONAL)
  endif()
endforeach()

# All but the debug information goes into one archive.
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
set(CPACK_COMPONENTS_ALL Runtime Development Documentation Archive Debug)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)
foreach(component Runtime Development Documentation Archive)
  string(TOUPPER ${component} component)
  set(CPACK_COMPONENT_${component}_GROUP release)
endforeach()
set(CPACK_COMPONENT_DEBUG_GROUP debug)
set(CPACK_ARCHIVE_RELEASE_FILE_NAME ${CPACK_PACKAGE_FILE_NAME})
set(CPACK_ARCHIVE_DEBUG_FILE_NAME ${CPACK_PACKAGE_FILE_NAME}-debug)
