# Our own build in the place of an installed package, for the samples of the guide.
set(TXGUICommon_FOUND TRUE)
set(TXGUICommon_RESOURCES_DIR ${TXGUICommon_SOURCE_DIR}/resources)
set(TXGUICommon_TRANSLATIONS_DIR ${TXGUICommon_BINARY_DIR}/tests/docs/translations)
foreach(library IN ITEMS TXCoreCommon TXResources TXGUICommon)
  if(NOT TARGET TXGUICommon::${library})
    set(TXGUICommon_FOUND FALSE)
  endif()
endforeach()
