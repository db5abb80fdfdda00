// SPDX-License-Identifier: MIT
// PRINT_TO_CONSOLE(). Almost every trace is made of "%s" and "%d" alone, and tracing was the largest part of a page's
// own work when each of them went through vsnprintf().
#include "frame/console.h"

#include "caltofal.h"

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

namespace frame {
namespace {

// Formats "%s" and "%d"; false when the format holds anything else. `sign` is the format's first '%'.
bool formatSimple(ConsoleLine &line, const char *format, const char *sign, va_list arguments) {
    for (;; sign = strchrnul(format, '%')) {
        line.append(format, static_cast<size_t>(sign - format));
        if (!*sign) {
            return true;
        }
        if (sign[1] == 's') {
            const char *text = va_arg(arguments, const char *);
            line.append(text ? text : "(null)");
        } else if (sign[1] == 'd') {
            line.append(va_arg(arguments, int));
        } else {
            return false;
        }
        format = sign + 2;
    }
}

} // namespace

int writeToConsole(const char *line, size_t length) {
    const int console = open("/dev/console", O_RDWR);
    if (console < 0) {
        return console;
    }
    [[maybe_unused]] const ssize_t written = write(console, line, length);
    return close(console);
}

int printToConsole(const char *format, va_list arguments) {
    const char *sign = strchrnul(format, '%');
    if (!*sign) {
        return writeToConsole(format, std::min(static_cast<size_t>(sign - format), kConsoleSize - 1));
    }
    ConsoleLine line;
    va_list again; // formatSimple() may give up halfway
    va_copy(again, arguments);
    if (!formatSimple(line, format, sign, arguments)) {
        line.format(format, again);
    }
    va_end(again);
    return writeToConsole(line);
}

} // namespace frame

using namespace frame;

int PRINT_TO_CONSOLE(const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const int result = printToConsole(format, arguments);
    va_end(arguments);
    return result;
}
