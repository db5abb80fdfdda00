// SPDX-License-Identifier: MIT
// What the fuzzers of the library share: the scripted platform and device of the unit tests, started over for each
// input, with failed expectations ending the run.
#pragma once

#include "bytes.h"
#include "device.h"
#include "platform.h"

#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace fuzz {

// A fresh platform and device; console and log are emptied, so that they do not grow from input to input.
inline void startOver() {
    GTEST_FLAG_SET(throw_on_failure, true);
    test::resetPlatform();
    test::resetShell();
    test::takeConsole();
    test::takeSyslog();
}

// Ends the run with what went wrong: a failed expectation cannot be ignored here.
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
