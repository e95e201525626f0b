include(TXCompilerOptions)

# tx_add_gallery_page(<unit> [<further unit>...])
#
# Adds a page to the gallery: <unit>.h and <unit>.cpp of the calling folder, with the units that
# only this page uses, of which one of the two files may be missing. The page itself is listed by
# one line in GalleryPages.cpp.
function(tx_add_gallery_page)
  foreach(unit IN LISTS ARGN)
    foreach(suffix IN ITEMS h cpp)
      if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${unit}.${suffix})
        target_sources(TXGalleryParts PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${unit}.${suffix})
      endif()
    endforeach()
  endforeach()
  target_include_directories(TXGalleryParts PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# tx_copy_gallery_resources(<target> <from> <to>)
#
# Builds a copy of the folder before the target, file by file: a file is copied again only when it
# has changed, a new one is found at the next build.
function(tx_copy_gallery_resources target from to)
  file(GLOB_RECURSE names RELATIVE ${from} CONFIGURE_DEPENDS ${from}/*)
  set(copies)
  foreach(name IN LISTS names)
    add_custom_command(
      OUTPUT ${to}/${name}
      DEPENDS ${from}/${name}
      COMMAND ${CMAKE_COMMAND} -E copy ${from}/${name} ${to}/${name}
      COMMENT "Copying resource ${name}"
      VERBATIM)
    list(APPEND copies ${to}/${name})
  endforeach()
  add_custom_target(${target}Resources DEPENDS ${copies})
  add_dependencies(${target} ${target}Resources)
endfunction()

# tx_add_gallery_plugin(<plug-in> [<further unit>...])
#
# Adds a plug-in with a configuration page: a module made of <plug-in>.h and <plug-in>.cpp of the
# calling folder, with its further units, built into the folder ConfWidgets beside the gallery.
function(tx_add_gallery_plugin plugin)
  add_library(${plugin} MODULE)
  foreach(unit IN LISTS plugin ARGN)
    target_sources(${plugin} PRIVATE ${unit}.h ${unit}.cpp)
  endforeach()
  tx_set_compiler_options(${plugin})
  get_target_property(gallery_bin TXGallery RUNTIME_OUTPUT_DIRECTORY)
  set_target_properties(${plugin} PROPERTIES
    PREFIX ""
    LIBRARY_OUTPUT_DIRECTORY ${gallery_bin}/ConfWidgets)
  target_link_libraries(${plugin} PRIVATE TXGUICommon::TXGUICommon)
  add_dependencies(TXGallery ${plugin})
  set_property(GLOBAL APPEND PROPERTY TX_GALLERY_PLUGINS ${plugin})
endfunction()

# tx_add_gallery_manual(<target> <from> <to>)
#
# Makes a PDF manual of the Markdown file before the target, again whenever the text has changed.
# The program that makes it gets a runtime folder of its own, which Qt makes when it is missing: a
# container has none, and Qt would remark on that in every build.
function(tx_add_gallery_manual target from to)
  cmake_path(GET to PARENT_PATH folder)
  add_custom_command(
    OUTPUT ${to}
    DEPENDS ${from} TXManualMaker
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${CMAKE_COMMAND} -E env XDG_RUNTIME_DIR=${CMAKE_CURRENT_BINARY_DIR}/runtime
      $<TARGET_FILE:TXManualMaker> ${from} ${to}
    COMMENT "Making the manual"
    VERBATIM)
  add_custom_target(${target}Manual DEPENDS ${to})
  add_dependencies(${target} ${target}Manual)
endfunction()
