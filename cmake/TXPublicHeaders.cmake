# tx_public_headers(<variable>)
#
# The public headers of all our libraries, as absolute paths: what hosts include. The export
# headers that the build generates are not among them.
function(tx_public_headers variable)
  set(headers)
  foreach(library TXCoreCommon TXResources TXGUICommon)
    get_target_property(sets ${library} INTERFACE_HEADER_SETS)
    list(FILTER sets INCLUDE REGEX "^public_headers_")
    foreach(set IN LISTS sets)
      get_target_property(files ${library} HEADER_SET_${set})
      list(APPEND headers ${files})
    endforeach()
  endforeach()
  set(${variable} ${headers} PARENT_SCOPE)
endfunction()
