// SPDX-License-Identifier: MIT
//
// The wireless driver's files, kept true while the gateway changes.
#pragma once

#include "store/location.h"

#include <string>

namespace device {

// Writes the files of all interfaces below `directory` and leaves a process behind that writes them anew whenever the
// store has changed. Throws std::runtime_error when they cannot be written.
void startDriver(const sandbox::Location &location, const std::string &directory);

} // namespace device
