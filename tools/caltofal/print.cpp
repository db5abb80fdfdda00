// SPDX-License-Identifier: MIT
#include "pages/report.h"

#include "pages/failure.h"

#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace cli {
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
        throw Failure(Exit::Failed, "standard output can not be written");
    }
}

void print(const Report &report, bool json) {
    if (json) {
        std::cout << dumped(report.json, 2) << '\n';
    } else {
        std::cout << (report.raw.empty() ? render(report.table, colourWanted()) : report.raw);
    }
    flushOutput();
    for (const std::string &note : report.notes) {
        std::cerr << "caltofal: " << printable(note) << '\n';
    }
}

} // namespace cli
