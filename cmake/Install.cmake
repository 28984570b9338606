# Headers, libraries and what find_package(Kestrane) and `pkg-config kestrane` look for. Components
# are what Packages.cmake makes packages of.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Kestrane")

function(kestrane_install target namespace)
  install(TARGETS ${target} EXPORT ${namespace}Targets
    LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
    ARCHIVE COMPONENT Development
    FILE_SET HEADERS COMPONENT Development)
  install(EXPORT ${namespace}Targets NAMESPACE ${namespace}:: DESTINATION "${package_dir}"
    COMPONENT Development)
endfunction()
kestrane_install(ombrel Ombrel)
kestrane_install(kestrane Kestrane)

configure_package_config_file(cmake/KestraneConfig.cmake.in
  "${CMAKE_CURRENT_BINARY_DIR}/KestraneConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/KestraneConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/KestraneConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/KestraneConfigVersion.cmake"
  DESTINATION "${package_dir}" COMPONENT Development)

# From where it lies to the prefix, so that the tree may be moved.
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH KESTRANE_PREFIX_FROM_PC "/prefix/${pc_dir}" "/prefix")
configure_file(cmake/kestrane.pc.in "${CMAKE_CURRENT_BINARY_DIR}/kestrane.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/kestrane.pc" DESTINATION "${pc_dir}"
  COMPONENT Development)

install(FILES README.md CHANGELOG.md DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/kestrane" COMPONENT Documentation)
install(DIRECTORY docs examples DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/kestrane"
  COMPONENT Documentation
  FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.cpp" PATTERN "CMakeLists.txt")
