# tx_public_headers(<variable>)
#
# The public headers of all our libraries, as absolute paths: what hosts include. The export
# headers that the build generates are not among them.
function(tx_public_headers variable)
  set(headers)
  foreach(library TXCoreCommon TXResources TXGUICommon)
    get_target_property(files ${library} HEADER_SET_public_headers)
    list(APPEND headers ${files})
  endforeach()
  list(FILTER headers EXCLUDE REGEX "Export\\.h$")
  set(${variable} ${headers} PARENT_SCOPE)
endfunction()
