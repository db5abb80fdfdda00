// SPDX-License-Identifier: MIT
#include "caltofal/print.h"

#include "caltofal/printable.h"
#include "caltofal/render.h"
#include "pages/json.h"

#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace cli {

using namespace pages;

namespace {

bool colourWanted() {
    const char *noColour = getenv("NO_COLOR");
    const char *terminal = getenv("TERM");
    const bool refused = (noColour && *noColour) || !terminal || std::string_view(terminal) == "dumb";
    return !refused && isatty(STDOUT_FILENO) == 1;
}

} // namespace

void flushOutput() {
    if (!std::cout.flush()) {
        throw Failure(Category::Failed, "standard output cannot be written");
    }
}

void print(const Report &report, bool json) {
    if (json) {
        std::cout << toJson(report.json, 2) << '\n';
    } else {
        std::cout << (report.raw.empty() ? render(report.table, colourWanted()) : report.raw);
    }
    flushOutput();
    for (const std::string &note : report.notes) {
        std::cerr << "caltofal: " << printable(note) << '\n';
    }
}

void printError(const Failure &failure, bool json) {
    if (json) {
        std::cerr << toJson(errorValue(failure)) << '\n';
    } else {
        std::cerr << "caltofal: " << printable(failure.what()) << '\n';
    }
}

} // namespace cli
