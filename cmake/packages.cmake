# Debian packages with CPack (cpack -G DEB in a build configured with CMAKE_INSTALL_PREFIX=/usr,
# as tests/packages/run.sh does): the shared library, its development files, and the program.
# The runtime package is named after the SONAME, as Debian names library packages.
set(CPACK_PACKAGE_NAME velkor6)
set(CPACK_PACKAGE_VENDOR velkor6)
set(CPACK_PACKAGE_CONTACT "velkor6 developers <velkor6@localhost>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev)
if(VELKOR6_PROGRAM)
  list(APPEND CPACK_COMPONENTS_ALL program)
endif()
if(TARGET velkor6_qt)
  list(APPEND CPACK_COMPONENTS_ALL qt qtdev)
endif()
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(deb_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
set(runtime_package libvelkor6-${PROJECT_VERSION_MAJOR})
# Depends from what the binaries link (dpkg-shlibdeps); the runtime package states its own
# shlibs so that packages built against it depend on it in turn.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
    "VB-style text, number, file and settings helpers (shared library)
velkor6 searches and rewrites text with VB's rules, parses numbers and writes SQL literals,
works with files, folders, settings files and the registry, and packs text with LZW.")

# The dialogs' Qt host is a package of its own, so that the library does not pull in Qt; the
# library loads it when it is there and falls back to text dialogs when it is not.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS libvelkor6-qt)
set(CPACK_DEBIAN_QT_PACKAGE_NAME libvelkor6-qt)
set(CPACK_DEBIAN_QT_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_QT_DESCRIPTION
    "VB-style text, number, file and settings helpers (Qt 6 dialogs and controls)
The library's message, input and status windows drawn with Qt 6 Widgets on an X display, and
the Qt widgets of a program presented as the controls the library's members work on.")
# It links the library; its shared-library dependencies are found beside it in the build (not
# installed on the build machine), and the exact version is stated here.
set(CPACK_DEBIAN_QT_PACKAGE_DEPENDS "${runtime_package} (= ${deb_version})")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/tools/velkor6)

# velkor6/qt.h and velkor6::qt for programs that hand their Qt widgets to the library.
set(CPACK_DEBIAN_QTDEV_PACKAGE_NAME libvelkor6-qt-dev)
set(CPACK_DEBIAN_QTDEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_QTDEV_PACKAGE_DEPENDS
    "libvelkor6-qt (= ${deb_version}), libvelkor6-dev (= ${deb_version}), qt6-base-dev")
set(CPACK_DEBIAN_QTDEV_DESCRIPTION
    "VB-style text, number, file and settings helpers (Qt development files)
The header velkor6/qt.h and the CMake target velkor6::qt (find_package(velkor6 COMPONENTS qt)):
a Qt program's widgets as the list views, list boxes, tab strips and text boxes that the
library's members take.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libvelkor6-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
# The headers belong to exactly this library; pugixml.pc is named by velkor6.pc.
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${runtime_package} (= ${deb_version}), libpugixml-dev")
set(CPACK_DEBIAN_DEV_DESCRIPTION
    "VB-style text, number, file and settings helpers (development files)
The C++20 headers, the CMake package (find_package(velkor6)), the pkg-config file, the README
and a C++ example.")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME velkor6)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
    "VB-style text, number, file and settings helpers (command-line program)
The velkor6 program calls the library's members by name from the command line, packs and
unpacks text, and lists the members; the member reference comes with it.")

include(CPack)
