# SPDX-License-Identifier: MIT
# The guide for hosts and the documents that it leads to, installed side by side: their links follow.
set(guide_directory ${CMAKE_INSTALL_DATADIR}/doc/libcaltofal-dev)
caltofal_relative(include_from_guide ${CMAKE_INSTALL_FULL_DATADIR}/doc/libcaltofal-dev ${CMAKE_INSTALL_FULL_INCLUDEDIR})

# caltofal_install_document(FILE)
function(caltofal_install_document file)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  file(READ ${file} text)
  string(REPLACE "](../" "](" text "${text}")
  string(REPLACE "](include/" "](${include_from_guide}/" text "${text}")
  string(REPLACE "[packaging](packaging/README.md)" "`packaging/README.md` of the sources" text "${text}")
  cmake_path(GET file FILENAME name)
  file(CONFIGURE OUTPUT documents/${name} CONTENT "${text}" @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/documents/${name} DESTINATION ${guide_directory} COMPONENT development)
endfunction()

foreach(document host-guide sandbox device-box gateway-file cli abi)
  caltofal_install_document(docs/${document}.md)
endforeach()
caltofal_install_document(SECURITY.md)
install(DIRECTORY examples DESTINATION ${guide_directory} COMPONENT development)
