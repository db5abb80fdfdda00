// SPDX-License-Identifier: MIT
// Writing lines to the console.
#pragma once

#include <cstdarg>
#include <cstddef>

namespace frame {

// The width of a line's buffer, the terminator included.
inline constexpr size_t kConsoleSize = 1024;

// Writes a line. Its results are those of PRINT_TO_CONSOLE().
int writeToConsole(const char *line, size_t length);

// PRINT_TO_CONSOLE() with its arguments in a va_list.
[[gnu::format(printf, 1, 0)]] int printToConsole(const char *format, va_list arguments);

} // namespace frame
