# Our own build in the place of an installed package, for the samples of the guide.
set(TXGUICommon_FOUND TRUE)
foreach(library IN ITEMS TXCoreCommon TXResources TXGUICommon)
  if(NOT TARGET TXGUICommon::${library})
    set(TXGUICommon_FOUND FALSE)
  endif()
endforeach()
