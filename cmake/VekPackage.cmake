# The installed package: find_package(vek) gives vek::vek and the platform libraries.
include(CMakePackageConfigHelpers)
configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/vekConfig.cmake.in ${PROJECT_BINARY_DIR}/vekConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vek)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vekConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(
  FILES
    ${PROJECT_BINARY_DIR}/vekConfig.cmake ${PROJECT_BINARY_DIR}/vekConfigVersion.cmake
    ${PROJECT_SOURCE_DIR}/cmake/VekResources.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vek)
install(EXPORT vekTargets NAMESPACE vek:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/vek)
install(
  DIRECTORY
    platform/lumcore/include/ platform/lumui/include/
    platform/lumworkspace/include/ platform/lumscripting/include/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(DIRECTORY vek DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN "*.h" PATTERN resources EXCLUDE)
