// SPDX-License-Identifier: MIT
// The console trace: a location tag, then the message, each with a PRINT_TO_CONSOLE() of its own. A caller prints the
// tag with one of these and the message right after it.
#pragma once

#include "caltofal.h"

namespace frame {

// Source units as they appear in a tag.
inline constexpr char kFaltoCal[] = "FaltoCal";
inline constexpr char kNetworkGet[] = "ZintuNetworkGet";
inline constexpr char kMeshGrove[] = "ZintuMeshGrove";
inline constexpr char kWifiUtil[] = "ZintuWifiUtil";

// "[ZINTU VOLA FAL] (unit:line, function) ". Pass the line where it is fixed.
void traceVola(const char *unit, int line = __builtin_LINE(), const char *function = __builtin_FUNCTION());

// "\n\n\t[function : line] ".
void traceError(int line = __builtin_LINE(), const char *function = __builtin_FUNCTION());

// "\n\n\t[function : line] (code)".
void traceCode(int code, int line = __builtin_LINE(), const char *function = __builtin_FUNCTION());

} // namespace frame
