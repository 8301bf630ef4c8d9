# The texts of the examples: compiles po/*.po to <build>/po/*.mo, each in the encoding that programs of
# its language use: the languages' Windows code pages, and UTF-8 for the rest. Needs GNU gettext.
find_program(PELMORA_MSGFMT msgfmt)
find_program(PELMORA_MSGCONV msgconv)
if(NOT PELMORA_MSGFMT OR NOT PELMORA_MSGCONV)
  message(STATUS "msgfmt is not installed (Debian's gettext): no translations")
  add_custom_target(pelmora_catalogues)
  return()
endif()

set(pelmora_catalogue_files "")
set(pelmora_charset_de CP1252)
set(pelmora_charset_da UTF-8)
set(pelmora_charset_ja SHIFT_JIS)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/po)
foreach(language de da ja)
  set(po ${PROJECT_SOURCE_DIR}/po/${language}.po)
  set(converted ${PROJECT_BINARY_DIR}/po/${language}.po)
  set(mo ${PROJECT_BINARY_DIR}/po/${language}.mo)
  add_custom_command(
    OUTPUT ${mo}
    COMMAND ${PELMORA_MSGCONV}
      --to-code=${pelmora_charset_${language}} --output-file=${converted} ${po}
    COMMAND ${PELMORA_MSGFMT} --check-format --output-file=${mo} ${converted}
    DEPENDS ${po}
    VERBATIM)
  list(APPEND pelmora_catalogue_files ${mo})
endforeach()
add_custom_target(pelmora_catalogues ALL DEPENDS ${pelmora_catalogue_files})
