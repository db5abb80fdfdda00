// SPDX-License-Identifier: MIT
// The console trace: a location tag, then the message, each a line of its own on the console.
#pragma once

#include "caltofal.h"

namespace frame {

// The source units that a tag names.
enum class Unit : int { FaltoCal, NetworkGet, MeshGrove, WifiUtil };

// The line and the function that a tag names: the caller's, unless they are fixed.
struct Spot {
    // NOLINTNEXTLINE(google-explicit-constructor): a line alone is a spot of the caller's
    Spot(int fixedLine = __builtin_LINE(), const char *caller = __builtin_FUNCTION())
        : function(caller), line(fixedLine) {}

    const char *function;
    int line;
};

// A spot and its source unit.
struct Place {
    // NOLINTNEXTLINE(google-explicit-constructor): a unit alone is the caller's place in it
    Place(Unit source, int fixedLine = __builtin_LINE(), const char *caller = __builtin_FUNCTION())
        : function(caller), line(fixedLine), unit(source) {}

    const char *function;
    int line;
    Unit unit;
};

// "[ZINTU VOLA FAL] (unit:line, function) ", then the message.
[[gnu::format(printf, 2, 3)]] void traceVola(Place place, const char *message, ...);

// "\n\n\t[function : line] ", then the message.
[[gnu::format(printf, 2, 3)]] void traceError(Spot spot, const char *message, ...);

// "\n\n\t[function : line] (code)", then the message as it stands.
void traceCode(int code, const char *message, Spot spot);

// A request through faltocal_send_main_multi_obj() that failed.
void traceFailedRequest(Spot spot = Spot());

} // namespace frame
