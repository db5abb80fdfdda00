# SPDX-License-Identifier: MIT
# Writes a source that carries the demo gateways inside the program: CALTOFAL_DEMO_SOURCE. The assembler reads the
# files when it is compiled, so that this works for any target and with files of any size.
file(GLOB demo_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/sandbox/gateways/*.tr181)
list(SORT demo_files)

set(demo_blocks "")
set(demo_rows "")
foreach(demo_file IN LISTS demo_files)
  cmake_path(GET demo_file STEM LAST_ONLY demo_name)
  string(MAKE_C_IDENTIFIER "caltofal_demo_${demo_name}" symbol)
  string(APPEND demo_blocks "CALTOFAL_DEMO(${symbol}, \"${demo_file}\")\n")
  string(APPEND demo_rows "    {\"${demo_name}\", {${symbol}_begin, static_cast<size_t>(${symbol}_end - ${symbol}_begin)}},\n")
endforeach()

set(CALTOFAL_DEMO_SOURCE ${CMAKE_CURRENT_BINARY_DIR}/demo_texts.cpp)
configure_file(demo_texts.cpp.in ${CALTOFAL_DEMO_SOURCE} @ONLY)
# By itself: compiled with others, what it depends on would be forgotten.
set_source_files_properties(${CALTOFAL_DEMO_SOURCE} PROPERTIES OBJECT_DEPENDS "${demo_files}"
                                                               SKIP_UNITY_BUILD_INCLUSION ON)
