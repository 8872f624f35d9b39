include(CMakePackageConfigHelpers)

install(TARGETS kexa EXPORT kexaTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/kexa" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/kexa")
install(EXPORT kexaTargets NAMESPACE kexa:: FILE kexaTargets.cmake DESTINATION "${package_dir}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/kexaConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/kexaConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/kexaConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/kexaConfig.cmake" "${PROJECT_BINARY_DIR}/kexaConfigVersion.cmake"
    DESTINATION "${package_dir}")
