include(TXCompilerOptions)

# tx_add_gallery_page(<unit> [<further unit>...])
#
# Adds a page to the gallery: <unit>.h and <unit>.cpp of the calling folder, with the units that
# only this page uses.
function(tx_add_gallery_page)
  foreach(unit IN LISTS ARGN)
    target_sources(TXGallery PRIVATE
      ${CMAKE_CURRENT_SOURCE_DIR}/${unit}.h ${CMAKE_CURRENT_SOURCE_DIR}/${unit}.cpp)
  endforeach()
  target_include_directories(TXGallery PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()
