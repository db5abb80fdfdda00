// SPDX-License-Identifier: MIT
// The frame's log: syslog and coloured standard output, gated by unfaltocalLogType and unfaltocalLogLevel.
#pragma once

#include "caltofal.h"

namespace frame {

// Every format begins "faltocal{%s, %d}:", filled with the tag and the source line; a third "%s" takes the detail.
void logCritical(const char *format, const char *tag, int line);
void logError(const char *format, const char *tag, int line, const char *detail = "");

} // namespace frame
