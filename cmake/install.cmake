# Installs the public headers, the library with its CMake package and pkg-config file, the
# program and the member reference.
include(CMakePackageConfigHelpers)

set(VELKOR6_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/velkor6)

install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/velkor6
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN "*.h")
install(TARGETS velkor6 EXPORT velkor6-targets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(VELKOR6_PROGRAM)
  install(TARGETS velkor6_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(FILES ${PROJECT_SOURCE_DIR}/docs/members.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

# A static velkor6 carries pugixml and X11 (libX11, libXext, libxcb) in its link interface
# (src/platform); a shared one has them inside.
get_target_property(velkor6_type velkor6 TYPE)
if(NOT WIN32 AND velkor6_type STREQUAL "STATIC_LIBRARY")
  set(VELKOR6_NEEDS_PUGIXML ON)
  set(VELKOR6_FIND_DEPENDENCIES
      "# The static library links pugixml::static and X11.\nfind_dependency(pugixml)\nfind_dependency(X11)\n")
else()
  set(VELKOR6_NEEDS_PUGIXML OFF)
  set(VELKOR6_FIND_DEPENDENCIES "")
endif()

install(EXPORT velkor6-targets
  NAMESPACE velkor6::
  DESTINATION ${VELKOR6_CMAKE_DIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/velkor6-config.cmake.in
  ${PROJECT_BINARY_DIR}/velkor6-config.cmake
  INSTALL_DESTINATION ${VELKOR6_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/velkor6-config-version.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/velkor6-config.cmake
              ${PROJECT_BINARY_DIR}/velkor6-config-version.cmake
  DESTINATION ${VELKOR6_CMAKE_DIR})

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
get_target_property(VELKOR6_PC_LIBS velkor6 VELKOR6_PC_LIBS)
if(NOT VELKOR6_PC_LIBS)
  set(VELKOR6_PC_LIBS "")
endif()
# A static library's dependencies belong on every link, a shared one's only on a static link.
set(VELKOR6_PC_REQUIRES "")
set(VELKOR6_PC_REQUIRES_PRIVATE "")
if(VELKOR6_NEEDS_PUGIXML)
  set(VELKOR6_PC_REQUIRES "pugixml x11 xext xcb")
elseif(NOT WIN32)
  set(VELKOR6_PC_REQUIRES_PRIVATE "pugixml x11 xext xcb")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/velkor6.pc.in ${PROJECT_BINARY_DIR}/velkor6.pc.in @ONLY)
install(CODE "configure_file(\"${PROJECT_BINARY_DIR}/velkor6.pc.in\"
                             \"${PROJECT_BINARY_DIR}/velkor6.pc\" @ONLY)")
install(FILES ${PROJECT_BINARY_DIR}/velkor6.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
