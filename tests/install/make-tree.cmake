# Installs the build BUILD, and moves what has come about to TREE: nothing may need the place where
# it was installed. The files keep the times of their sources.
file(REMOVE_RECURSE ${TREE} ${TREE}-unmoved)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${TREE}-unmoved --strip
  COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${TREE}-unmoved ${TREE})
