# SPDX-License-Identifier: MIT
# What `cmake --install` puts where, in five components: library, development, tools, web and sandbox. What is installed
# may be moved as a whole: the programs, the pkg-config file and the CMake package find the rest from where they are.
include(CMakePackageConfigHelpers)

# caltofal_relative(VARIABLE FROM TO): the way from one installed directory to another
function(caltofal_relative variable from to)
  file(RELATIVE_PATH way ${from} ${to})
  string(REGEX REPLACE "/$" "" way "${way}")
  set(${variable} ${way} PARENT_SCOPE)
endfunction()

# The libraries find each other beside themselves; of the programs caltofal and caltofal-web need one of them.
foreach(library caltofal cal helper)
  if(TARGET ${library})
    set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
  endif()
endforeach()
foreach(program caltofal-sandbox caltofal-box-init caltofal-device-model)
  if(TARGET ${program})
    set_target_properties(${program} PROPERTIES INSTALL_RPATH "")
  endif()
endforeach()
caltofal_relative(library_from_program ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
foreach(program caltofal_tool caltofal-web)
  if(TARGET ${program})
    set_target_properties(${program} PROPERTIES INSTALL_RPATH "$ORIGIN/${library_from_program}")
  endif()
endforeach()

install(TARGETS caltofal EXPORT caltofal-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library
        NAMELINK_COMPONENT development)
install(FILES include/caltofal.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

set(cmake_directory ${CMAKE_INSTALL_LIBDIR}/cmake/caltofal)
install(EXPORT caltofal-targets NAMESPACE caltofal:: DESTINATION ${cmake_directory} COMPONENT development)
configure_package_config_file(cmake/caltofal-config.cmake.in caltofal-config.cmake
                              INSTALL_DESTINATION ${cmake_directory})
write_basic_package_version_file(caltofal-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/caltofal-config.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/caltofal-config-version.cmake
        DESTINATION ${cmake_directory} COMPONENT development)

set(pkgconfig_directory ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig)
foreach(place PREFIX FULL_LIBDIR FULL_INCLUDEDIR)
  caltofal_relative(${place}_FROM_PKGCONFIG ${pkgconfig_directory} ${CMAKE_INSTALL_${place}})
endforeach()
configure_file(cmake/caltofal.pc.in caltofal.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/caltofal.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)

# Manual pages and completions go with what they describe.
function(caltofal_install_page page component)
  string(REGEX MATCH "[0-9]$" section ${page})
  install(FILES packaging/man/${page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man${section} COMPONENT ${component})
endfunction()
# One script serves all programs; the shell looks for it under the program's name.
function(caltofal_install_completion program component)
  install(FILES packaging/completion/caltofal.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
          RENAME ${program} COMPONENT ${component})
endfunction()

caltofal_install_page(libcaltofal.3 development)
if(CALTOFAL_PLATFORM STREQUAL "sandbox") # a device's staging directory needs no guide
  include(InstallDocuments)
endif()
if(TARGET caltofal_tool)
  caltofal_install_page(caltofal.1 tools)
  caltofal_install_completion(caltofal tools)
endif()
if(TARGET caltofal-web)
  caltofal_install_page(caltofal-web.1 web)
  caltofal_install_completion(caltofal-web web)
endif()
if(TARGET caltofal-sandbox)
  caltofal_install_page(caltofal-sandbox.1 sandbox)
  caltofal_install_page(caltofal-gateway.5 sandbox)
  caltofal_install_completion(caltofal-sandbox sandbox)
  install(DIRECTORY sandbox/gateways/ DESTINATION ${CMAKE_INSTALL_DATADIR}/caltofal/gateways COMPONENT sandbox
          FILES_MATCHING PATTERN "*.tr181")
endif()

include(Package)
