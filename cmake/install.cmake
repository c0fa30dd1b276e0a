# Installation, the CMake package qorl_zet (targets qorl::zet and qorl::core) and the pkg-config file.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/qorl_zet)

set_target_properties(qorl_zet_avx2 PROPERTIES EXPORT_NAME zet)
set_target_properties(qorl_core PROPERTIES EXPORT_NAME core)
install(TARGETS qorl_zet_avx2 qorl_core EXPORT qorl_zet_targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT qorl_zet_targets NAMESPACE qorl:: DESTINATION ${package_dir})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/qorl DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

write_basic_package_version_file(${PROJECT_BINARY_DIR}/qorl_zet-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/qorl_zet-config.cmake ${PROJECT_BINARY_DIR}/qorl_zet-config-version.cmake
        DESTINATION ${package_dir})

# The folders relative to the file's own, so that an installation may be moved or go to another prefix than configured.
set(pkgconfig_dir ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pc_libdir ${pkgconfig_dir} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH pc_includedir ${pkgconfig_dir} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
configure_file(${PROJECT_SOURCE_DIR}/cmake/qorl_zet.pc.in ${PROJECT_BINARY_DIR}/qorl_zet.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/qorl_zet.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
