// SPDX-License-Identifier: MIT
// The library's lines on standard output and standard error, kept out of the tool's own.
#pragma once

#include <cstdio>

namespace cli {

// While it lives, stdout and stderr of the C library (of which the tool itself uses neither) lead to the trace. The
// descriptors stay as they are, so that a crash report still reaches the terminal. On a C library whose streams can
// not be replaced nothing changes.
class StdioCapture {
  public:
    StdioCapture();
    StdioCapture(const StdioCapture &) = delete;
    StdioCapture &operator=(const StdioCapture &) = delete;
    ~StdioCapture();

  private:
    FILE *out_;
    FILE *err_;
};

} // namespace cli
