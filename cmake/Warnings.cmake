# SPDX-License-Identifier: MIT
add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wformat=2)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # GCC 12 sees overlaps in std::string concatenations that are none.
  add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()
