# Installs the public headers, the library with its CMake package and pkg-config file, the
# program and the member reference. The components are the Debian packages (cmake/packages.cmake):
# runtime (the shared library), dev (what a build against it needs) and program.
include(CMakePackageConfigHelpers)

set(VELKOR6_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/velkor6)

# velkor6/qt.h goes with the Qt library's development files (src/ui/qt), where that is built.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/velkor6
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  COMPONENT dev
  FILES_MATCHING PATTERN "*.h" PATTERN "qt.h" EXCLUDE)
install(TARGETS velkor6 EXPORT velkor6-targets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT dev)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/cpp
  DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT dev)
if(VELKOR6_PROGRAM)
  install(TARGETS velkor6_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/docs/members.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT program)

# A static velkor6 carries pugixml and X11 (libX11, libXext, libxcb) in its link interface
# (src/platform); a shared one has them inside.
get_target_property(velkor6_type velkor6 TYPE)
if(NOT WIN32 AND velkor6_type STREQUAL "STATIC_LIBRARY")
  set(VELKOR6_FIND_DEPENDENCIES
      "# The static library links pugixml::static and X11.\nfind_dependency(pugixml)\nfind_dependency(X11)\n")
else()
  set(VELKOR6_FIND_DEPENDENCIES "")
endif()

install(EXPORT velkor6-targets
  NAMESPACE velkor6::
  DESTINATION ${VELKOR6_CMAKE_DIR}
  COMPONENT dev)
# velkor6::qt in a file of its own, which the package config includes where it is installed: the
# Qt library is a package of its own (libvelkor6-qt-dev), so find_package(velkor6) works without
# it and find_package(velkor6 COMPONENTS qt) asks for it.
if(TARGET velkor6_qt)
  install(EXPORT velkor6-qt-targets
    NAMESPACE velkor6::
    DESTINATION ${VELKOR6_CMAKE_DIR}
    COMPONENT qtdev)
  export(EXPORT velkor6-qt-targets NAMESPACE velkor6::
    FILE ${PROJECT_BINARY_DIR}/velkor6-qt-targets.cmake)
endif()
# The build tree is a package too: find_package(velkor6) with velkor6_DIR set to it (the
# example_cpp test builds examples/cpp so).
export(EXPORT velkor6-targets NAMESPACE velkor6:: FILE ${PROJECT_BINARY_DIR}/velkor6-targets.cmake)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/velkor6-config.cmake.in
  ${PROJECT_BINARY_DIR}/velkor6-config.cmake
  INSTALL_DESTINATION ${VELKOR6_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/velkor6-config-version.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/velkor6-config.cmake
              ${PROJECT_BINARY_DIR}/velkor6-config-version.cmake
  DESTINATION ${VELKOR6_CMAKE_DIR}
  COMPONENT dev)

# velkor6.pc. The prefix is the one given at install time (cmake --install --prefix), so the
# file is written in two steps: the install directories now, the prefix when installing.
foreach(dir LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${dir}}")
    set(VELKOR6_PC_${dir} "${CMAKE_INSTALL_${dir}}")
  else()
    set(VELKOR6_PC_${dir} "\${prefix}/${CMAKE_INSTALL_${dir}}")
  endif()
endforeach()
set(VELKOR6_PC_PREFIX "@CMAKE_INSTALL_PREFIX@")
# A shared velkor6 has its dependencies inside; a static one needs them on the link, which
# `pkg-config --static` adds.
get_target_property(VELKOR6_PC_LIBS_PRIVATE velkor6 VELKOR6_PC_LIBS)
if(NOT VELKOR6_PC_LIBS_PRIVATE)
  set(VELKOR6_PC_LIBS_PRIVATE "")
endif()
# pkg-config wants every package of Requires.private installed, even for a shared link: the X11
# development packages are named only where a static library needs them.
if(WIN32)
  set(VELKOR6_PC_REQUIRES_PRIVATE "")
elseif(velkor6_type STREQUAL "STATIC_LIBRARY")
  set(VELKOR6_PC_REQUIRES_PRIVATE "pugixml x11 xext xcb")
else()
  set(VELKOR6_PC_REQUIRES_PRIVATE pugixml)
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/velkor6.pc.in ${PROJECT_BINARY_DIR}/velkor6.pc.in @ONLY)
install(CODE "configure_file(\"${PROJECT_BINARY_DIR}/velkor6.pc.in\"
                             \"${PROJECT_BINARY_DIR}/velkor6.pc\" @ONLY)"
  COMPONENT dev)
install(FILES ${PROJECT_BINARY_DIR}/velkor6.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT dev)
