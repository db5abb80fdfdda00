# SPDX-License-Identifier: MIT
# What a test's script runs for a program of ours: the program, or where it is built for another machine, a script that
# runs it under the emulator.
function(caltofal_command variable target)
  if(NOT CMAKE_CROSSCOMPILING)
    set(${variable} $<TARGET_FILE:${target}> PARENT_SCOPE)
    return()
  endif()
  set(script ${PROJECT_BINARY_DIR}/emulated/$<TARGET_FILE_NAME:${target}>)
  set(${variable} ${script} PARENT_SCOPE)
  get_property(written GLOBAL PROPERTY caltofal_emulated_${target})
  if(written)
    return()
  endif()
  set_property(GLOBAL PROPERTY caltofal_emulated_${target} TRUE)
  list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
  file(GENERATE OUTPUT ${script} CONTENT "#!/bin/sh\nexec ${emulator} $<TARGET_FILE:${target}> \"$@\"\n"
       FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
endfunction()
