# SPDX-License-Identifier: MIT
# caltofal_discover_tests(PROGRAM LABEL [FILTER]): each GoogleTest case of a program is a test. Under an emulator a program
# takes longer to start than most cases take: there all of a program are one test, without those that the filter drops.
include(GoogleTest)
function(caltofal_discover_tests program label)
  if(NOT CMAKE_CROSSCOMPILING)
    gtest_discover_tests(${program} PROPERTIES LABELS ${label} DISCOVERY_TIMEOUT 60)
    return()
  endif()
  set(filter)
  if(ARGC GREATER 2)
    set(filter --gtest_filter=${ARGV2})
  endif()
  add_test(NAME ${program} COMMAND ${program} ${filter})
  set_tests_properties(${program} PROPERTIES LABELS ${label} TIMEOUT 600)
endfunction()
