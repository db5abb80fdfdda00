# SPDX-License-Identifier: MIT
# What a builder may choose, and the defaults of every target.

set(CALTOFAL_PLATFORM sandbox CACHE STRING
    "Where libcal and libhelper come from: 'sandbox' builds the stand-ins, 'system' takes the sysroot's")
set_property(CACHE CALTOFAL_PLATFORM PROPERTY STRINGS sandbox system)
if(NOT CALTOFAL_PLATFORM MATCHES "^(sandbox|system)$")
  message(FATAL_ERROR "CALTOFAL_PLATFORM is '${CALTOFAL_PLATFORM}': it must be 'sandbox' or 'system'")
endif()

string(COMPARE EQUAL "${CALTOFAL_PLATFORM}" sandbox is_sandbox)
option(CALTOFAL_TOOLS "Build the command-line tool" ON)
# Where it is cross-built, the sysroot must have its libraries.
if(is_sandbox AND NOT CMAKE_CROSSCOMPILING)
  set(is_native ON)
else()
  set(is_native OFF)
endif()
option(CALTOFAL_WEB "Build the web back end" ${is_native})
option(CALTOFAL_TESTS "Build the tests" ${is_sandbox})
option(CALTOFAL_BENCH "Build the benchmarks" OFF)

set(CMAKE_C_STANDARD 11)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

# Sanitizers bring a run-time library of their own: what is said about link lines elsewhere holds without them only.
set(CALTOFAL_SANITIZE "" CACHE STRING "Sanitizers to build with, such as 'address,undefined' or 'thread'")
if(CALTOFAL_SANITIZE)
  add_compile_options(-fsanitize=${CALTOFAL_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${CALTOFAL_SANITIZE})
endif()

# What optimising costs at build time is spent on the library; tests and tools spend theirs in the store.
set(CALTOFAL_TOOLS_FLAGS -O1 CACHE STRING "How a release build optimises tools and sandbox")
set(CMAKE_CXX_FLAGS_RELEASE "${CALTOFAL_TOOLS_FLAGS} -DNDEBUG")
set(CMAKE_C_FLAGS_RELEASE "${CALTOFAL_TOOLS_FLAGS} -DNDEBUG")

set(CALTOFAL_LIBRARY_FLAGS -O2 CACHE STRING "How a release build optimises the library; '-Os' where flash is dear")

# Large headers are parsed once, not once a file.
option(CALTOFAL_PRECOMPILE "Precompile the large headers of the standard library and of others" ON)
# caltofal_precompile(TARGET HEADER...) or (TARGET REUSE_FROM TARGET)
function(caltofal_precompile target)
  if(NOT CALTOFAL_PRECOMPILE)
    return()
  endif()
  if(ARGV1 STREQUAL REUSE_FROM)
    target_precompile_headers(${target} ${ARGN})
  else()
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()
# The headers of the standard library that most files of sandbox and tools include are parsed once for all their targets,
# which therefore are compiled with the same options. After the target's sources, before options of its own.
function(caltofal_precompile_std)
  if(CALTOFAL_PRECOMPILE AND NOT TARGET std_headers)
    file(WRITE ${PROJECT_BINARY_DIR}/std_headers.cpp "")
    add_library(std_headers STATIC ${PROJECT_BINARY_DIR}/std_headers.cpp)
    caltofal_precompile(std_headers <algorithm> <cstdlib> <functional> <iterator> <memory> <optional> <span> <string>
                        <string_view> <vector>)
    caltofal_precompiled_options(std_headers)
  endif()
  foreach(target ${ARGN})
    caltofal_precompile(${target} REUSE_FROM std_headers)
    caltofal_precompiled_options(${target})
  endforeach()
endfunction()
function(caltofal_precompiled_options target)
  # Without the checks of each access, which take a third of the time to compile: the address sanitizer and a crash tell as
  # much. The fuzzers, which clang compiles, keep them.
  if(CALTOFAL_SANITIZE MATCHES "undefined" AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(${target} PRIVATE -fno-sanitize=null,alignment,object-size,vptr)
  endif()
  # Not by POSITION_INDEPENDENT_CODE, which means another option for a program than for a library.
  target_compile_options(${target} PRIVATE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})
  # GCC 12, which then knows no longer that they are the system's, sees short texts overrun in their concatenations.
  if(CALTOFAL_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
  endif()
endfunction()

# caltofal_compile_as_one(TARGET...): the files of each folder are compiled together, in a quarter of the time. Names in
# the unnamed namespaces of a folder must differ; ./dev lint sees that each file stands by itself.
option(CALTOFAL_UNITY "Compile the files of a folder together" ON)
function(caltofal_compile_as_one)
  foreach(target ${ARGN})
    get_target_property(sources ${target} SOURCES)
    foreach(source ${sources})
      cmake_path(GET source PARENT_PATH folder)
      string(REPLACE "${PROJECT_SOURCE_DIR}/" "" folder "${folder}")
      string(MAKE_C_IDENTIFIER "in_${folder}" group)
      set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ${CALTOFAL_UNITY} UNITY_BUILD_MODE GROUP)
    if(CALTOFAL_UNITY)
      # A function may well have a name of its own that stands in another file, too, and a type of a source file members
      # of types of its unnamed namespace.
      target_compile_options(${target} PRIVATE -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
    endif()
  endforeach()
endfunction()
