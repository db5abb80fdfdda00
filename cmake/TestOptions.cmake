# SPDX-License-Identifier: MIT
# How the tests of a folder are compiled. The library's own objects are optimised and checked; tests are compiled far
# more often than they run.
add_compile_options($<$<CONFIG:Release>:-O0>)
if(CALTOFAL_SANITIZE MATCHES "undefined")
  add_compile_options(-fno-sanitize=undefined) # they take half as long to compile
endif()
