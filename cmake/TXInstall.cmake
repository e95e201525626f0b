# What "cmake --install" puts where. The components: runtime, what a program needs that links the
# libraries, and nothing that another major version has under the same name; development, what its
# build needs besides; gallery; designer.
#
# All places are relative to the prefix and to one another, so that the tree works wherever it is
# moved.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Places that were named from the root on are meant from the prefix on.
foreach(tx_place IN ITEMS BINDIR DATADIR INCLUDEDIR LIBDIR MANDIR)
  set(tx_folder "${CMAKE_INSTALL_${tx_place}}")
  if(IS_ABSOLUTE "${tx_folder}")
    cmake_path(IS_PREFIX CMAKE_INSTALL_PREFIX "${tx_folder}" NORMALIZE tx_is_below)
    if(NOT tx_is_below)
      message(FATAL_ERROR
        "CMAKE_INSTALL_${tx_place}, ${tx_folder}, is not below the prefix ${CMAKE_INSTALL_PREFIX}.")
    endif()
    cmake_path(RELATIVE_PATH tx_folder BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}"
      OUTPUT_VARIABLE CMAKE_INSTALL_${tx_place})
  endif()
endforeach()

set(tx_headers_dir ${CMAKE_INSTALL_INCLUDEDIR}/TXGUICommon)
set(tx_package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TXGUICommon)
set(tx_data_dir ${CMAKE_INSTALL_DATADIR}/TXGUICommon)
set(tx_doc_dir ${CMAKE_INSTALL_DATADIR}/doc/TXGUICommon)
set(tx_gallery_dir ${CMAKE_INSTALL_LIBDIR}/TXGUICommon/gallery)

# tx_install_rpath(<target> <folder>)
#
# Lets the target, which is installed in the folder, find our libraries.
function(tx_install_rpath target folder)
  if(NOT APPLE AND NOT WIN32)
    file(RELATIVE_PATH way /${folder} /${CMAKE_INSTALL_LIBDIR})
    string(REGEX REPLACE "/$" "" path "$ORIGIN/${way}")
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "${path}")
  endif()
endfunction()

# tx_install_library(<library> DESCRIPTION <text> REQUIRES <pkg-config module>...)
#
# Installs the library with its public headers, its part of the CMake package and its pkg-config file.
# What is required are the modules whose headers ours include.
function(tx_install_library library)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESCRIPTION" "REQUIRES")
  get_target_property(sets ${library} INTERFACE_HEADER_SETS)
  list(TRANSFORM sets REPLACE "(.+)"
    "FILE_SET;\\1;DESTINATION;${tx_headers_dir};COMPONENT;development" OUTPUT_VARIABLE headers)
  tx_install_rpath(${library} ${CMAKE_INSTALL_LIBDIR})
  install(TARGETS ${library} EXPORT ${library}Targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
      NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    ${headers})
  install(EXPORT ${library}Targets NAMESPACE TXGUICommon::
    DESTINATION ${tx_package_dir} COMPONENT development)

  list(JOIN arg_REQUIRES ", " requires)
  file(RELATIVE_PATH way_to_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" way_to_prefix ${way_to_prefix})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/TXLibrary.pc.in install/${library}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/install/${library}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)
endfunction()

# tx_designer_folder(<variable>)
#
# Where Designer looks for plug-ins when the prefix is that of Qt: Qt's folder, from the prefix on.
# Under other prefixes QT_PLUGIN_PATH leads to it.
function(tx_designer_folder variable)
  get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
  foreach(name IN ITEMS PLUGINS PREFIX)
    execute_process(COMMAND ${qmake} -query QT_INSTALL_${name}
      OUTPUT_VARIABLE ${name} OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
  file(RELATIVE_PATH folder ${PREFIX} ${PLUGINS}/designer)
  set(${variable} ${folder} PARENT_SCOPE)
endfunction()

tx_install_library(TXCoreCommon
  DESCRIPTION "Errors, late-translated texts, log, mail, FTP and network drives for TXGUICommon"
  REQUIRES "Qt6Widgets >= 6.4")
tx_install_library(TXResources
  DESCRIPTION "Stock pixmaps for TXGUICommon"
  REQUIRES "Qt6Gui >= 6.4")
tx_install_library(TXGUICommon
  DESCRIPTION "${PROJECT_DESCRIPTION}"
  REQUIRES "TXCoreCommon = ${PROJECT_VERSION}" "TXResources = ${PROJECT_VERSION}"
    "Qt6Sql >= 6.4" "Qt6Widgets >= 6.4")

# The CMake package.
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/TXGUICommonConfig.cmake.in
  install/TXGUICommonConfig.cmake
  INSTALL_DESTINATION ${tx_package_dir}
  PATH_VARS tx_data_dir
  NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(install/TXGUICommonConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(
  FILES
    ${CMAKE_CURRENT_BINARY_DIR}/install/TXGUICommonConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/install/TXGUICommonConfigVersion.cmake
  DESTINATION ${tx_package_dir} COMPONENT development)

# What a host copies beside its program. The icon font is not ours to distribute.
list(TRANSFORM TXGUICOMMON_LANGUAGES
  REPLACE "(.+)" "${PROJECT_BINARY_DIR}/translations/txguicommon_\\1.qm"
  OUTPUT_VARIABLE tx_library_texts)
install(FILES ${tx_library_texts} DESTINATION ${tx_data_dir}/translations COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/Images ${PROJECT_SOURCE_DIR}/resources/Templates
  DESTINATION ${tx_data_dir}/Resources COMPONENT development)

# What people read, in the folders of the repository, so that links lead from page to page.
install(
  FILES
    ${PROJECT_SOURCE_DIR}/LICENSE
    ${PROJECT_SOURCE_DIR}/NOTICE.md
    ${PROJECT_SOURCE_DIR}/README.md
    ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  DESTINATION ${tx_doc_dir} COMPONENT development)
install(
  DIRECTORY
    ${PROJECT_SOURCE_DIR}/docs/developers
    ${PROJECT_SOURCE_DIR}/docs/hosts
    ${PROJECT_SOURCE_DIR}/docs/pictures
  DESTINATION ${tx_doc_dir}/docs COMPONENT development
  PATTERN build EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples
  DESTINATION ${tx_doc_dir} COMPONENT development
  PATTERN build EXCLUDE)
install(FILES ${PROJECT_SOURCE_DIR}/designer/README.md
  DESTINATION ${tx_doc_dir}/designer COMPONENT development)

# The gallery: a folder of its own as a host has it, with a link where programs are looked for.
if(TARGET TXGallery)
  tx_install_rpath(TXGallery ${tx_gallery_dir}/bin)
  install(TARGETS TXGallery RUNTIME DESTINATION ${tx_gallery_dir}/bin COMPONENT gallery)

  get_property(tx_plugins GLOBAL PROPERTY TX_GALLERY_PLUGINS)
  foreach(plugin IN LISTS tx_plugins)
    tx_install_rpath(${plugin} ${tx_gallery_dir}/bin/ConfWidgets)
  endforeach()
  install(TARGETS ${tx_plugins}
    LIBRARY DESTINATION ${tx_gallery_dir}/bin/ConfWidgets COMPONENT gallery)

  install(
    DIRECTORY
      ${PROJECT_SOURCE_DIR}/resources/Images
      ${PROJECT_SOURCE_DIR}/resources/LegalNotices
      ${PROJECT_SOURCE_DIR}/resources/Templates
    DESTINATION ${tx_gallery_dir}/Resources COMPONENT gallery)
  install(FILES ${PROJECT_BINARY_DIR}/gallery/Resources/Manual/TXGallery.pdf
    DESTINATION ${tx_gallery_dir}/Resources/Manual COMPONENT gallery)
  list(TRANSFORM TXGUICOMMON_LANGUAGES
    REPLACE "(.+)" "${PROJECT_BINARY_DIR}/gallery/Resources/translations/txgallery_\\1.qm"
    OUTPUT_VARIABLE tx_gallery_texts)
  install(FILES ${tx_library_texts} ${tx_gallery_texts}
    DESTINATION ${tx_gallery_dir}/Resources/translations COMPONENT gallery)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/localservers/
    DESTINATION ${tx_gallery_dir}/localservers COMPONENT gallery
    FILES_MATCHING PATTERN *.py)

  file(RELATIVE_PATH tx_way_to_gallery /${CMAKE_INSTALL_BINDIR} /${tx_gallery_dir}/bin/TXGallery)
  file(CREATE_LINK ${tx_way_to_gallery} ${CMAKE_CURRENT_BINARY_DIR}/install/TXGallery SYMBOLIC)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/install/TXGallery
    DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT gallery)
  install(FILES ${PROJECT_SOURCE_DIR}/gallery/TXGallery.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT gallery)
  install(FILES ${PROJECT_SOURCE_DIR}/gallery/TXGallery.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT gallery)
  install(FILES ${PROJECT_SOURCE_DIR}/gallery/TXGallery.1
    DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT gallery)
endif()

if(TARGET TXGUICommonDesigner)
  tx_designer_folder(tx_designer_dir)
  tx_install_rpath(TXGUICommonDesigner ${tx_designer_dir})
  install(TARGETS TXGUICommonDesigner LIBRARY DESTINATION ${tx_designer_dir} COMPONENT designer)
endif()

if(PROJECT_IS_TOP_LEVEL)
  include(TXPackage)
endif()
