include(GenerateExportHeader)
include(TXCompilerOptions)

# tx_add_library(<name>)
#
# A shared library of ours without sources yet, with its export header <name>Export.h, which defines
# <NAME>_EXPORT for what hosts use and <NAME>_PRIVATE_EXPORT for classes that only our own tests
# reach. Its aliases are TXGUICommon::<name> and, as for those who find the installed package, the
# name of the component: TXGUICommon::<name without TX>.
function(tx_add_library name)
  add_library(${name} SHARED)
  string(REGEX REPLACE "^TX" "" component ${name})
  add_library(TXGUICommon::${name} ALIAS ${name})
  add_library(TXGUICommon::${component} ALIAS ${name})
  tx_set_compiler_options(${name})
  set_target_properties(${name} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})

  string(TOUPPER ${name} prefix)
  if(TXGUICOMMON_EXPORT_PRIVATE)
    set(private_export "#define ${prefix}_PRIVATE_EXPORT ${prefix}_EXPORT")
  else()
    set(private_export "#define ${prefix}_PRIVATE_EXPORT")
  endif()
  set(export_header ${CMAKE_CURRENT_BINARY_DIR}/export/${name}Export.h)
  generate_export_header(${name}
    BASE_NAME ${prefix}
    EXPORT_FILE_NAME ${export_header}
    CUSTOM_CONTENT_FROM_VARIABLE private_export)
  target_sources(${name} PUBLIC
    FILE_SET export_header TYPE HEADERS
    BASE_DIRS ${CMAKE_CURRENT_BINARY_DIR}/export
    FILES ${export_header})
endfunction()

# tx_add_library_folder(<library>
#   [PUBLIC <unit>...]       # the header is for hosts: it is installed, documented, include-tested
#   [PRIVATE <unit>...]      # the header stays inside the library
#   [PRECOMPILE <header>])   # the library's one precompiled header
#
# Adds the units of the calling folder to the library. A unit is a name: <unit>.h with <unit>.cpp,
# or one of the two where the other does not exist. Its form, if it has one, is src/forms/<unit>.ui.
function(tx_add_library_folder library)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "PRECOMPILE" "PUBLIC;PRIVATE")
  set(here ${CMAKE_CURRENT_SOURCE_DIR})

  foreach(unit IN LISTS arg_PUBLIC arg_PRIVATE)
    if(EXISTS ${here}/${unit}.cpp)
      target_sources(${library} PRIVATE ${here}/${unit}.cpp)
    endif()
    # Without this a build after an edit of the form makes its header and forgets who includes it.
    if(EXISTS ${PROJECT_SOURCE_DIR}/src/forms/${unit}.ui)
      set_source_files_properties(${here}/${unit}.cpp TARGET_DIRECTORY ${library}
        PROPERTIES OBJECT_DEPENDS ${PROJECT_SOURCE_DIR}/src/forms/${unit}.ui)
    endif()
  endforeach()
  # A set of its own, since a set may not hold a folder and a folder inside that one.
  cmake_path(GET here FILENAME folder)
  foreach(unit IN LISTS arg_PUBLIC)
    target_sources(${library} PUBLIC
      FILE_SET public_headers_${folder} TYPE HEADERS BASE_DIRS ${here} FILES ${here}/${unit}.h)
  endforeach()
  foreach(unit IN LISTS arg_PRIVATE)
    if(EXISTS ${here}/${unit}.h)
      target_sources(${library} PRIVATE ${here}/${unit}.h)
    endif()
  endforeach()
  target_include_directories(${library} PRIVATE ${here})
  # Qt's generators look again for sources only when the lists of the library's own folder change.
  get_target_property(home ${library} SOURCE_DIR)
  set_property(DIRECTORY ${home} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${here}/CMakeLists.txt)

  if(arg_PRECOMPILE)
    target_precompile_headers(${library} PRIVATE ${arg_PRECOMPILE})
  endif()
endfunction()
