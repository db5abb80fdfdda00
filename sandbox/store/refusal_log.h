// SPDX-License-Identifier: MIT
#pragma once

#include "store/location.h"

namespace sandbox {

// Appends a line to the gateway's log: time, process, operation, code, its name, and the reason. A log that cannot be
// written is done without; one that has grown beyond a megabyte starts anew, the old one stays as NAME.log.old.
void logRefusal(const Location &location, const char *operation, int code, const char *reason) noexcept;

} // namespace sandbox
