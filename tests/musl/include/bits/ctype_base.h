// SPDX-License-Identifier: MIT
// Stands in for the C++ headers' use of glibc's character classes.
#pragma once

namespace std {
struct ctype_base {
    typedef const int *__to_type;
    typedef unsigned short mask;
    static const mask upper = 1, lower = 2, alpha = 4, digit = 8, xdigit = 16, space = 32, print = 64, graph = 128,
                      cntrl = 256, punct = 512, alnum = 4 | 8, blank = 1024;
};
} // namespace std
