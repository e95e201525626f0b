find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

# tx_translation_files(<variable> <module>)
#
# The files with the texts of a module, such as "txguicommon", one a language.
function(tx_translation_files variable module)
  list(TRANSFORM TXGUICOMMON_LANGUAGES
    REPLACE "(.+)" "${PROJECT_SOURCE_DIR}/translations/${module}_\\1.ts"
    OUTPUT_VARIABLE files)
  set(${variable} ${files} PARENT_SCOPE)
endfunction()

# tx_add_translations(<target> <to> <file.ts>...)
#
# Releases the translations into the folder <to> before the target, each again when it has changed.
# What is not translated yet is left out, so that the program shows it in English.
function(tx_add_translations target to)
  set_source_files_properties(${ARGN} PROPERTIES OUTPUT_LOCATION ${to})
  qt_add_lrelease(${target} TS_FILES ${ARGN} OPTIONS -silent)
endfunction()

# tx_add_translations_update(<module> <folder of sources>...)
#
# Lets the target translations-update, which no build includes, bring the module's files into step
# with the texts of the sources. A TXStringI18n is read like translate(), and so its texts have two
# forms, of which the first is shown: they have no number.
function(tx_add_translations_update module)
  tx_translation_files(files ${module})
  add_custom_target(${module}-translations-update
    COMMAND Qt6::lupdate -silent -locations none -no-obsolete
      -tr-function-alias translate+=TXStringI18n
      ${ARGN} -ts ${files}
    VERBATIM)
  if(NOT TARGET translations-update)
    add_custom_target(translations-update)
  endif()
  add_dependencies(translations-update ${module}-translations-update)
endfunction()
