// SPDX-License-Identifier: MIT
// What the library writes besides its results, collected line by line and shown on standard error with --trace.
#pragma once

#include <string_view>

namespace cli {

enum class Source { Console, Stderr, Log, Request };

// From now on complete lines are shown as they come; otherwise they are dropped.
void showTrace();
bool traceShown();

// Where the lines go: standard error, unless told otherwise.
void traceTo(int descriptor);

// Adds a piece of text of a source, in the order in which the pieces were written.
void traceText(Source source, std::string_view text);

// Fetches what was written to the console since the last call.
void traceCollect();

} // namespace cli
