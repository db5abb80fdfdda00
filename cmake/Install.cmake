# SPDX-License-Identifier: MIT
# What `cmake --install` puts where; the pkg-config file and the CMake package are relocatable.
include(CMakePackageConfigHelpers)

install(TARGETS caltofal EXPORT caltofal-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
        NAMELINK_COMPONENT development)
install(FILES include/caltofal.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
install(EXPORT caltofal-targets NAMESPACE caltofal:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/caltofal
        COMPONENT development)
configure_package_config_file(cmake/caltofal-config.cmake.in caltofal-config.cmake
                              INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/caltofal)
write_basic_package_version_file(caltofal-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/caltofal-config.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/caltofal-config-version.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/caltofal COMPONENT development)
configure_file(cmake/caltofal.pc.in caltofal.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/caltofal.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
