// SPDX-License-Identifier: MIT
// The trace line that several Wi-Fi functions share. Line and function are those of the caller.
#pragma once

#include "frame/trace.h"

namespace wifi {

// The first line of a function that announces itself.
inline void traceStart(int line = __builtin_LINE(), const char *function = __builtin_FUNCTION()) {
    frame::traceVola({frame::Unit::WifiUtil, line, function}, "START_FUNCTION \n");
}

} // namespace wifi
