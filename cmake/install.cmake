# Installation: the two shared libraries with their headers (the C++ one too), the licence, a CMake package
# (find_package(vtxgen CONFIG) gives vtxgen::vtxgenp8 and vtxgen::vtxcore) and
# pkg-config files.  The generator, its model library and the tests stay in
# the build tree.
include(CMakePackageConfigHelpers)

set(VTX_CMAKE_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/vtxgen)
set(VTX_PKGCONFIG_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# vtxgenp8 needs its sibling libvtxcore at run time; let the installed copy
# find it next to itself wherever the tree is installed or moved to.
set_target_properties(vtxgenp8 PROPERTIES INSTALL_RPATH "$ORIGIN")

install(TARGETS vtxgenp8 vtxcore
  EXPORT vtxgenTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT Runtime
    NAMELINK_COMPONENT Development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

install(FILES
    ${PROJECT_SOURCE_DIR}/include/vtxgen.h
    ${PROJECT_SOURCE_DIR}/include/vtxgen.hpp
    ${PROJECT_SOURCE_DIR}/include/vtxcore.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  COMPONENT Development)

# The licence goes wherever the library goes.
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE
  DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/vtxgen
  COMPONENT Runtime)

install(EXPORT vtxgenTargets
  NAMESPACE vtxgen::
  DESTINATION ${VTX_CMAKE_INSTALL_DIR}
  COMPONENT Development)

configure_package_config_file(
  ${CMAKE_CURRENT_LIST_DIR}/vtxgenConfig.cmake.in
  ${PROJECT_BINARY_DIR}/vtxgenConfig.cmake
  INSTALL_DESTINATION ${VTX_CMAKE_INSTALL_DIR})
# The soname carries major and minor, so only the same 6.1 is compatible.
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/vtxgenConfigVersion.cmake
  VERSION ${PROJECT_VERSION}
  COMPATIBILITY SameMinorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/vtxgenConfig.cmake
    ${PROJECT_BINARY_DIR}/vtxgenConfigVersion.cmake
  DESTINATION ${VTX_CMAKE_INSTALL_DIR}
  COMPONENT Development)

# pkg-config files locate the prefix from their own directory, so the tree
# works under any --prefix, DESTDIR or after being moved.
if(IS_ABSOLUTE "${VTX_PKGCONFIG_INSTALL_DIR}")
  set(VTX_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
else()
  file(RELATIVE_PATH _vtx_up "/${VTX_PKGCONFIG_INSTALL_DIR}" "/")
  string(REGEX REPLACE "/$" "" _vtx_up "${_vtx_up}")
  set(VTX_PC_PREFIX "\${pcfiledir}/${_vtx_up}")
endif()
foreach(dir LIBDIR INCLUDEDIR)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${dir}}")
    set(VTX_PC_${dir} "${CMAKE_INSTALL_${dir}}")
  else()
    set(VTX_PC_${dir} "\${prefix}/${CMAKE_INSTALL_${dir}}")
  endif()
endforeach()
foreach(pc vtxgen vtxcore)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/${pc}.pc.in ${PROJECT_BINARY_DIR}/${pc}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${pc}.pc
    DESTINATION ${VTX_PKGCONFIG_INSTALL_DIR}
    COMPONENT Development)
endforeach()
