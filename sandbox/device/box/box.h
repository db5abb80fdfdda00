// SPDX-License-Identifier: MIT
//
// The device box: a private file system with the device's paths, tools and daemons, in which any program runs
// unchanged.
#pragma once

#include "store/location.h"

#include <string>
#include <vector>

namespace box {

struct Request {
    sandbox::Location gateway;        // it exists
    std::vector<std::string> command; // at least the program
    std::vector<std::string> shown;   // further host directories to show at their paths, writable
};

// Whether this process is in a box already.
bool isInside();

// Runs the command in a box, or straight away in the one that this process is in, and waits for its end. Its exit
// code, 128 and the signal's number when a signal ended it. Throws an Obstacle when there can be no box.
int run(const Request &request);

} // namespace box
