# SPDX-License-Identifier: MIT
# 32-bit big-endian MIPS with Debian's cross compiler; programs run under qemu's user emulation.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR mips)
set(CMAKE_C_COMPILER mips-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER mips-linux-gnu-g++)

# What the sysroot script built, and what came with the cross compiler.
get_filename_component(built "${CMAKE_CURRENT_LIST_DIR}/../../build/mips-sysroot" ABSOLUTE)
set(CMAKE_FIND_ROOT_PATH ${built} /usr/mips-linux-gnu)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${built}/lib/pkgconfig)

# Flash is dear on such gateways, and their processors know the 16-bit encoding.
set(CALTOFAL_LIBRARY_FLAGS -Os -mips16 CACHE STRING "How a release build optimises the library")

set(CMAKE_CROSSCOMPILING_EMULATOR qemu-mips -L /usr/mips-linux-gnu)
