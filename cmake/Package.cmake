# SPDX-License-Identifier: MIT
# Debian packages, one for each component: `cpack` in a build directory, or packaging/deb.
if(NOT CALTOFAL_PLATFORM STREQUAL "sandbox")
  return() # a device has packages of its own: packaging/openwrt
endif()

set(CALTOFAL_MAINTAINER "libcaltofal packagers <packagers@caltofal.invalid>" CACHE STRING
    "Who answers for the Debian packages")

# caltofal_package(COMPONENT NAME SECTION SUMMARY DESCRIPTION): each component is a package
function(caltofal_package component name section summary description)
  string(TOUPPER ${component} upper)
  set(package CPACK_DEBIAN_${upper}_PACKAGE)
  set(${package}_NAME ${name} PARENT_SCOPE)
  set(${package}_SECTION ${section} PARENT_SCOPE)
  set(${package}_SHLIBDEPS ON PARENT_SCOPE)
  set(CPACK_COMPONENT_${upper}_DESCRIPTION "${summary}\n${description}" PARENT_SCOPE)
  install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} RENAME copyright
          COMPONENT ${component})
endfunction()

set(library_package libcaltofal${PROJECT_VERSION_MAJOR})
set(same_version "(= ${PROJECT_VERSION})")

caltofal_package(library ${library_package} libs
                 "read and change a residential gateway's TR-181 configuration"
                 "The shared library, for programs that were built with it.")
caltofal_package(development libcaltofal-dev libdevel
                 "develop programs for a residential gateway's TR-181 configuration"
                 "The header of libcaltofal, its pkg-config file, CMake package and manual page,
a guide for host programs and its examples.")
caltofal_package(tools caltofal net
                 "command line for a residential gateway's TR-181 configuration"
                 "Shows the pages of a gateway, reads and changes any object, readable or as JSON.")
caltofal_package(web caltofal-web net
                 "web back end for a residential gateway's TR-181 configuration"
                 "Serves the pages of a gateway as JSON over HTTP, with a page for the browser.")
caltofal_package(sandbox caltofal-sandbox devel
                 "a residential gateway on a laptop"
                 "Stand-ins of the platform libraries libcal and libhelper on SQLite, demo
gateways, a tool that looks after gateways, and a box in which programs meet
the device's shell, tools and files.")

# The platform's libraries come from the sandbox, or from whoever says that he has them.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "caltofal-sandbox ${same_version} | caltofal-platform")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${library_package} ${same_version}")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF) # no programs in it
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${library_package} ${same_version}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "bash-completion")
set(CPACK_DEBIAN_WEB_PACKAGE_DEPENDS "${library_package} ${same_version}")
set(CPACK_DEBIAN_WEB_PACKAGE_SUGGESTS "bash-completion, caltofal")
set(CPACK_DEBIAN_SANDBOX_PACKAGE_PROVIDES "caltofal-platform")
set(CPACK_DEBIAN_SANDBOX_PACKAGE_RECOMMENDS "bubblewrap, busybox-static")
set(CPACK_DEBIAN_SANDBOX_PACKAGE_SUGGESTS "bash-completion, caltofal")

# What tells the builds of other packages which package has the library.
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs
     "libcaltofal ${PROJECT_VERSION_MAJOR} ${library_package} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/shlibs)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME caltofal)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${CALTOFAL_MAINTAINER}")
set(CPACK_COMPONENTS_ALL library development tools sandbox)
if(CALTOFAL_WEB)
  list(APPEND CPACK_COMPONENTS_ALL web)
endif()
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
include(CPack)
