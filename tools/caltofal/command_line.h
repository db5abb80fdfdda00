// SPDX-License-Identifier: MIT
// The command line as a whole: the commands' arguments and the options that go with all of them.
#pragma once

#include "caltofal/command.h"

#include <string>

namespace cli {

struct Options {
    bool json = false;
    bool trace = false;
    bool secrets = false; // are shown
    std::string gateway;  // "": the environment's, else the sandbox's own choice
};

struct Task {
    const Command *command = nullptr;
    Show show;
};

// What to do. Prints help or version and answers no command where that was asked for; throws Usage.
Task parse(int argc, char **argv, Options &options);

} // namespace cli
