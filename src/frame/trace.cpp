// SPDX-License-Identifier: MIT
#include "frame/trace.h"

#include "frame/console.h"

#include <cstdarg>

#pragma GCC diagnostic ignored "-Wformat-nonliteral" // Format has held each message against its values

namespace frame {
namespace {

void writeTag(Unit unit, int line, const char *function) {
    ConsoleLine tag;
    tag.append("[ZINTU VOLA FAL] (");
    tag.append(kUnitNames[static_cast<int>(unit)]);
    tag.append(":");
    tag.append(line);
    tag.append(", ");
    tag.append(function);
    tag.append(") ");
    writeToConsole(tag);
}

} // namespace

void detail::vola(Unit unit, int line, const char *function, const char *format, ...) {
    writeTag(unit, line, function);
    va_list arguments;
    va_start(arguments, format);
    printToConsole(format, arguments);
    va_end(arguments);
}

void traceVola(const VolaTag &tag) {
    writeToConsole(tag.text(), tag.length());
}

void detail::error(int line, const char *function, const char *format, ...) {
    PRINT_TO_CONSOLE("\n\n\t[%s : %d] ", function, line);
    va_list arguments;
    va_start(arguments, format);
    printToConsole(format, arguments);
    va_end(arguments);
}

void traceCode(int code, const char *message, Spot spot) {
    PRINT_TO_CONSOLE("\n\n\t[%s : %d] (%d)", spot.function, spot.line, code);
    PRINT_TO_CONSOLE("%s", message);
}

void traceFailedRequest(Spot spot) {
    traceError(spot, "faltocal_send_main_multi_obj is Failure\n");
}

} // namespace frame
