include(CMakePackageConfigHelpers)

install(TARGETS kexa EXPORT kexaTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
if(MINGW AND NOT KEXA_STATIC_RUNTIME)
    # Objects and exceptions pass between host and library, so both must share one C++ runtime. It is
    # installed beside kexa.dll, so that programs in that folder run on a system without MinGW.
    install(FILES ${KEXA_RUNTIME_DLLS} DESTINATION "${CMAKE_INSTALL_BINDIR}")
endif()
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/kexa" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/kexa")
install(EXPORT kexaTargets NAMESPACE kexa:: FILE kexaTargets.cmake DESTINATION "${package_dir}")
configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/kexaConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/kexaConfig.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/kexaConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/kexaConfig.cmake" "${PROJECT_BINARY_DIR}/kexaConfigVersion.cmake"
    DESTINATION "${package_dir}")
