// SPDX-License-Identifier: MIT
// Texts made fit for a terminal.
#pragma once

#include <string>
#include <string_view>

namespace cli {

// Takes the user's locale, or "C.UTF-8" where that one knows ASCII alone. Before the first text is shown.
void useUtf8Locale();

bool localeIsUtf8();

// Control characters, marks of direction, and all but ASCII where the text is not UTF-8 or the system has no locale
// for it, as "\x1b".
std::string printable(std::string_view text);

} // namespace cli
