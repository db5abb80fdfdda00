// SPDX-License-Identifier: MIT
// The console's lines.
#pragma once

#include <cstdarg>
#include <cstddef>

namespace frame {

// A line's room, the terminator included.
inline constexpr size_t kConsoleSize = 1024;

// Writes a line; the results of PRINT_TO_CONSOLE().
int writeToConsole(const char *line, size_t length);

// PRINT_TO_CONSOLE() of arguments at hand.
[[gnu::format(printf, 1, 0)]] int printToConsole(const char *format, va_list arguments);

} // namespace frame
