# Compiles po/*.po to <build>/po/*.mo, each in the encoding that programs of its language use: the
# languages' Windows code pages, and UTF-8 for the rest. Needs GNU gettext.
find_program(MSGFMT msgfmt)
find_program(MSGCONV msgconv)
set(pelmora_catalogues "")
if(NOT MSGFMT OR NOT MSGCONV)
  message(STATUS "msgfmt is not installed (Debian's gettext): no translations")
  return()
endif()

set(charset_de CP1252)
set(charset_da UTF-8)
set(charset_ja SHIFT_JIS)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/po)
foreach(language de da ja)
  set(po ${PROJECT_SOURCE_DIR}/po/${language}.po)
  set(converted ${PROJECT_BINARY_DIR}/po/${language}.po)
  set(mo ${PROJECT_BINARY_DIR}/po/${language}.mo)
  add_custom_command(
    OUTPUT ${mo}
    COMMAND ${MSGCONV} --to-code=${charset_${language}} --output-file=${converted} ${po}
    COMMAND ${MSGFMT} --check-format --output-file=${mo} ${converted}
    DEPENDS ${po}
    VERBATIM)
  list(APPEND pelmora_catalogues ${mo})
endforeach()
add_custom_target(translations ALL DEPENDS ${pelmora_catalogues})
