# find_package(GXUIPickers) after `cmake --install`.
include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/GXUIPickers")
install(EXPORT GXUIPickersTargets NAMESPACE gx:: DESTINATION "${package_folder}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/GXUIPickersConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/GXUIPickersConfig.cmake" INSTALL_DESTINATION "${package_folder}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/GXUIPickersConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/GXUIPickersConfig.cmake" "${PROJECT_BINARY_DIR}/GXUIPickersConfigVersion.cmake"
  DESTINATION "${package_folder}")
