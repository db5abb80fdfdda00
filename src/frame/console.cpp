// SPDX-License-Identifier: MIT
#include "frame/console.h"

#include "caltofal.h"
#include "frame/bounded_text.h"

#include <fcntl.h>
#include <unistd.h>

namespace frame {

int writeToConsole(const char *line, size_t length) {
    const int console = open("/dev/console", O_RDWR);
    if (console < 0) {
        return console;
    }
    [[maybe_unused]] const ssize_t written = write(console, line, length);
    return close(console);
}

int printToConsole(const char *format, va_list arguments) {
    char line[kConsoleSize];
    const size_t length = formatText(line, sizeof(line), format, arguments);
    return writeToConsole(line, length);
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
