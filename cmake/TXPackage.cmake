# The Debian packages that "cpack" makes of what is installed: the libraries, what a host's build
# needs besides, the gallery, the plug-in for Qt Designer.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME txguicommon)
set(CPACK_PACKAGE_VENDOR "Tovra Hue Works")
set(CPACK_PACKAGE_CONTACT "Tovra Hue Works <packages@tovra.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.tovra.example)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Each package has a description of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

# tx_debian_package(<component> <package> SECTION <section> SUMMARY <line> TEXT <text>
#   [DEPENDS <package>...] [RECOMMENDS <package>...] [SUGGESTS <package>...])
#
# Makes a package of the component. What its programs and libraries link is found without being
# named, but for our own libraries.
macro(tx_debian_package component package)
  cmake_parse_arguments(arg "" "SECTION;SUMMARY;TEXT" "DEPENDS;RECOMMENDS;SUGGESTS" ${ARGN})
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  string(TOUPPER ${component} prefix)
  set(CPACK_DEBIAN_${prefix}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${prefix}_PACKAGE_SECTION ${arg_SECTION})
  set(CPACK_DEBIAN_${prefix}_DESCRIPTION "${arg_SUMMARY}\n${arg_TEXT}")
  foreach(relation IN ITEMS DEPENDS RECOMMENDS SUGGESTS)
    list(JOIN arg_${relation} ", " CPACK_DEBIAN_${prefix}_PACKAGE_${relation})
  endforeach()
endmacro()

set(tx_runtime_package libtxguicommon${PROJECT_VERSION_MAJOR})
set(tx_same_runtime "${tx_runtime_package} (= ${PROJECT_VERSION})")
set(tx_network_drives gvfs-backends gvfs-fuse libglib2.0-bin smbclient avahi-utils avahi-daemon
  libnss-mdns)

set(CPACK_COMPONENTS_ALL)
tx_debian_package(runtime ${tx_runtime_package}
  SECTION libs
  SUMMARY "Qt widgets library for colour-management applications"
  TEXT "Shared libraries for programs that use TXGUICommon."
  RECOMMENDS libqt6sql6-sqlite qt6-translations-l10n
  SUGGESTS libqt6sql6-mysql ${tx_network_drives})
# Packages of other programs get this one as a dependency for what they link, and the loader hears of
# what comes and goes.
set(tx_control ${CMAKE_CURRENT_BINARY_DIR}/install/control)
set(tx_shlibs)
foreach(library IN ITEMS TXCoreCommon TXResources TXGUICommon)
  string(APPEND tx_shlibs "lib${library} ${PROJECT_VERSION_MAJOR} "
    "${tx_runtime_package} (>= ${PROJECT_VERSION})\n")
endforeach()
file(CONFIGURE OUTPUT ${tx_control}/shlibs CONTENT "${tx_shlibs}")
file(CONFIGURE OUTPUT ${tx_control}/triggers CONTENT "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${tx_control}/shlibs ${tx_control}/triggers)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS OFF)

tx_debian_package(development libtxguicommon-dev
  SECTION libdevel
  SUMMARY "Qt widgets library for colour-management applications - development"
  TEXT "Headers, CMake package and pkg-config files to build programs that use\nTXGUICommon, pictures and translations to ship with them, guides and examples."
  DEPENDS "${tx_same_runtime}" qt6-base-dev
  RECOMMENDS cmake g++ pkg-config)

# Samba is only suggested: its package starts a service with the machine.
if(TARGET TXGallery)
  tx_debian_package(gallery txguicommon-gallery
    SECTION devel
    SUMMARY "Qt widgets library for colour-management applications - gallery"
    TEXT "A program that shows every widget of TXGUICommon with real content."
    DEPENDS "${tx_same_runtime}"
    RECOMMENDS libqt6sql6-mysql libqt6sql6-sqlite qt6-translations-l10n
      python3 python3-aiosmtpd python3-pyftpdlib python3-asyncssh openssl
      mariadb-client-core mariadb-server-core libnss-wrapper libuid-wrapper
      fonts-droid-fallback ${tx_network_drives}
    SUGGESTS samba)
endif()

if(TARGET TXGUICommonDesigner)
  tx_debian_package(designer txguicommon-designer
    SECTION devel
    SUMMARY "Qt widgets library for colour-management applications - Designer plug-in"
    TEXT "Puts the widgets of TXGUICommon into the widget box of Qt Designer."
    DEPENDS "${tx_same_runtime}"
    RECOMMENDS designer-qt6)
endif()

configure_file(${PROJECT_SOURCE_DIR}/cmake/TXDebianFiles.cmake.in install/TXDebianFiles.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/install/TXDebianFiles.cmake)
include(CPack)
