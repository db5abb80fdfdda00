// SPDX-License-Identifier: MIT
// Debian's C++ headers are set up for glibc; this stands in for the one file that asks for its version.
#pragma once

#define _GLIBCXX_OS_DEFINES 1
