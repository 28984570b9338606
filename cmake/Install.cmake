# Headers, libraries and the package that find_package(Kestrane) looks for.
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
