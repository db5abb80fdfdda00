// SPDX-License-Identifier: MIT
// The trace line with which several Wi-Fi functions begin.
#pragma once

#include "frame/trace.h"

namespace wifi {

// Line and function are the caller's.
inline void traceStart(int line = __builtin_LINE(), const char *function = __builtin_FUNCTION()) {
    frame::traceVola({frame::Unit::WifiUtil, line, function}, "START_FUNCTION \n");
}

} // namespace wifi
