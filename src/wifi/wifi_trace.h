// SPDX-License-Identifier: MIT
// Trace lines that several Wi-Fi functions share. Line and function are those of the caller.
#pragma once

#include "trace.h"

namespace wifi {

// The first line of a function that announces itself.
inline void traceStart(int line = __builtin_LINE(), const char *function = __builtin_FUNCTION()) {
    frame::traceVola({frame::Unit::WifiUtil, line, function}, "START_FUNCTION \n");
}

// A request that the configuration layer refused.
inline void traceFailedRequest(int line = __builtin_LINE(), const char *function = __builtin_FUNCTION()) {
    frame::traceError({line, function}, "faltocal_send_main_multi_obj is Failure\n");
}

} // namespace wifi
