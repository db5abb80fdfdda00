// SPDX-License-Identifier: MIT
#include "wifi/driver/command_text.h"

#include <cstdarg>
#include <cstdio>

namespace wifi {

void formatCut(char *target, size_t size, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(target, size, format, arguments);
    va_end(arguments);
}

} // namespace wifi
