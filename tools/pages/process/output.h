// SPDX-License-Identifier: MIT
// What the library and the device's tools write besides results.
#pragma once

#include <string_view>

namespace pages {

enum class Source { Console, Stderr, Log, Request };

// Takes pieces of text, in the order in which they were written, on whichever thread shows the page.
using Sink = void (*)(Source source, std::string_view text);

// Who takes them; nobody where it is not said. To be called before the first page, once.
void takeOutput(Sink sink);

bool outputIsTaken();

// Hands a piece to whoever takes them.
void output(Source source, std::string_view text);

} // namespace pages
