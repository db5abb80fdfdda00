// SPDX-License-Identifier: MIT
// What the command line says.
#pragma once

#include "listener.h"

#include <optional>
#include <string>
#include <vector>

namespace web {

struct Options {
    std::string gateway;
    ListenAddress listen;
    std::vector<std::string> hosts;
    std::string tokenFile;
    bool readOnly = false;
    unsigned connections = 64;
    unsigned connectionsPerAddress = 16;
};

// Reads the command line; prints what --help and --version ask for, and what is wrong. The exit code where the program
// ends with that.
std::optional<int> parseOptions(int argc, char **argv, Options &options);

} // namespace web
