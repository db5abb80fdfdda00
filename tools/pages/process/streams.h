// SPDX-License-Identifier: MIT
// The library's lines on standard output and standard error, kept out of the program's own.
#pragma once

#include <cstdio>

namespace pages {

// While it lives, stdout and stderr of the C library (of which the program itself must use neither) lead to whoever
// takes the output. The descriptors stay as they are, so that a crash report still reaches the terminal. On a C library
// whose streams cannot be replaced nothing changes. One in a process, before the first page.
class StreamCapture {
  public:
    StreamCapture();
    StreamCapture(const StreamCapture &) = delete;
    StreamCapture &operator=(const StreamCapture &) = delete;
    ~StreamCapture();

  private:
    FILE *out_;
    FILE *err_;
};

} // namespace pages
