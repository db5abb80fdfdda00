// SPDX-License-Identifier: MIT
#include "trace.h"

#include "console.h"

namespace frame {

void traceVola(const char *unit, int line, const char *function) {
    ConsoleLine tag;
    tag.append("[ZINTU VOLA FAL] (");
    tag.append(unit);
    tag.append(":");
    tag.append(line);
    tag.append(", ");
    tag.append(function);
    tag.append(") ");
    writeToConsole(tag);
}

void traceVola(const VolaTag &tag) {
    writeToConsole(tag.text(), tag.length());
}

void traceError(int line, const char *function) {
    PRINT_TO_CONSOLE("\n\n\t[%s : %d] ", function, line);
}

void traceCode(int code, int line, const char *function) {
    PRINT_TO_CONSOLE("\n\n\t[%s : %d] (%d)", function, line, code);
}

} // namespace frame
