// SPDX-License-Identifier: MIT
// A noun of the command line. Each has a file of its own and a line in nouns.cpp.
#pragma once

#include "pages/report.h"

#include <functional>
#include <span>

namespace CLI {
class App;
}

namespace cli {

// Does what the parsed command line asks; throws Failure.
using Run = std::function<Report()>;

struct Noun {
    const char *name;
    const char *summary;
    const char *examples;             // argument lists, a line each
    Run (*define)(CLI::App &command); // adds the arguments, which the result then reads
};

std::span<const Noun *const> nouns();

} // namespace cli
