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
