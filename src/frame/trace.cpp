// SPDX-License-Identifier: MIT
#include "frame/trace.h"

#include "frame/console.h"

#include <cstdarg>

namespace frame {
namespace {

constexpr char kUnitNames[][16] = {"FaltoCal", "ZintuNetworkGet", "ZintuMeshGrove", "ZintuWifiUtil"};

} // namespace

void traceVola(Place place, const char *message, ...) {
    PRINT_TO_CONSOLE("[ZINTU VOLA FAL] (%s:%d, %s) ", kUnitNames[static_cast<int>(place.unit)], place.line,
                     place.function);
    va_list arguments;
    va_start(arguments, message);
    printToConsole(message, arguments);
    va_end(arguments);
}

void traceError(Spot spot, const char *message, ...) {
    PRINT_TO_CONSOLE("\n\n\t[%s : %d] ", spot.function, spot.line);
    va_list arguments;
    va_start(arguments, message);
    printToConsole(message, arguments);
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
