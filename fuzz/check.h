// SPDX-License-Identifier: MIT
// What every fuzzer of the library uses: its entry point, how it ends a run, and texts as a caller holds them.
#pragma once

#include "bytes.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace fuzz {

// Ends the run with what went wrong.
inline void require(bool holds, const char *what) {
    if (!holds) {
        fprintf(stderr, "%s\n", what);
        abort();
    }
}

// A text in memory of its very length, so that a read past its end is seen.
class Text {
  public:
    explicit Text(const std::string &text) : text_(strdup(text.c_str())) {}
    ~Text() { free(text_); }
    Text(const Text &) = delete;
    Text &operator=(const Text &) = delete;
    char *get() { return text_; }

  private:
    char *text_;
};

} // namespace fuzz
