// SPDX-License-Identifier: MIT
// For fuzzers of functions that ask the configuration layer or trace: the scripted platform and device of the unit
// tests, started over for each input, with failed expectations ending the run.
#pragma once

#include "check.h"
#include "device.h"
#include "platform.h"

namespace fuzz {

// A fresh platform and device; console and log are emptied, so that they do not grow from input to input.
inline void startOver() {
    GTEST_FLAG_SET(throw_on_failure, true);
    test::resetPlatform();
    test::resetShell();
    test::takeConsole();
    test::takeSyslog();
}

} // namespace fuzz
