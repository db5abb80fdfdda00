// SPDX-License-Identifier: MIT
// The command line as a whole: the nouns' arguments and the options that go with all of them.
#pragma once

#include "caltofal/noun.h"

#include <string>

namespace cli {

struct Options {
    bool json = false;
    bool trace = false;
    std::string gateway; // "": the environment's, else the sandbox's own choice
};

// What to run. Prints help or version and answers an empty function where that was asked for; throws Usage.
Run parse(int argc, char **argv, Options &options);

} // namespace cli
