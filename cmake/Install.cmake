# Headers, libraries and what find_package(Kestrane) and `pkg-config kestrane` look for.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Kestrane")

install(TARGETS ombrel EXPORT OmbrelTargets FILE_SET HEADERS)
install(TARGETS kestrane EXPORT KestraneTargets FILE_SET HEADERS)
install(EXPORT OmbrelTargets NAMESPACE Ombrel:: DESTINATION "${package_dir}")
install(EXPORT KestraneTargets NAMESPACE Kestrane:: DESTINATION "${package_dir}")

configure_package_config_file(cmake/KestraneConfig.cmake.in
  "${CMAKE_CURRENT_BINARY_DIR}/KestraneConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/KestraneConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/KestraneConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/KestraneConfigVersion.cmake"
  DESTINATION "${package_dir}")

# From where it lies to the prefix, so that the tree may be moved.
set(pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH KESTRANE_PREFIX_FROM_PC "/prefix/${pc_dir}" "/prefix")
configure_file(cmake/kestrane.pc.in "${CMAKE_CURRENT_BINARY_DIR}/kestrane.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/kestrane.pc" DESTINATION "${pc_dir}")
