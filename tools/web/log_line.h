// SPDX-License-Identifier: MIT
// The log, on standard error.
#pragma once

#include "status.h"

#include <string>
#include <string_view>

namespace web {

// What a client chose, so that it cannot end a line or steer a terminal: without blanks, and cut where it is long.
std::string plain(std::string_view text);

// Writes "TIME ADDRESS TEXT -> OUTCOME" at once, in one piece. Waits for nobody: lines that cannot be written are
// dropped, and counted in a line before the next one that can be. Safe for many threads.
void logLine(const std::string &address, const std::string &text, const std::string &outcome);
void logLine(const std::string &address, const std::string &text, Status status);

} // namespace web
