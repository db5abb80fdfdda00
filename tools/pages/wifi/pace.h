// SPDX-License-Identifier: MIT
// The option of the verbs that wait for the device.
#pragma once

#include "pages/process/wait.h"

#include <string>

namespace CLI {
class App;
}

namespace cli::wifi {

// --pace MS
void addPace(CLI::App &command, std::string &target);

// An exported table of intervals with the unit that was asked for: a second where none was. Throws Usage.
Pace paceOf(const uint8_t (&intervals)[40], const std::string &milliseconds);

} // namespace cli::wifi
