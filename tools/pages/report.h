// SPDX-License-Identifier: MIT
// What a command found out: one answer, printed as JSON or for people.
#pragma once

#include "pages/table.h"
#include "pages/text.h"

#include <string>
#include <vector>

namespace cli {

struct Report { // NOLINT(bugprone-exception-escape): the JSON library checks itself when moving
    Json json;
    Table table;
    std::string raw;                // for scripts, byte for byte; instead of the table where not empty
    std::vector<std::string> notes; // words for people, beside the data
};

// Writes the data to standard output and the notes to standard error. Throws Failure when standard output can not be
// written.
// Throws Failure when standard output did not take all of it.
void flushOutput();

void print(const Report &report, bool json);

} // namespace cli
