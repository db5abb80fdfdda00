// SPDX-License-Identifier: MIT
// The library's console trace, kept away from the console.
#pragma once

#include <string>

namespace cli {

// From now on what any library of this process opens as "/dev/console" is a private memory file.
void captureConsole();

// What was written to it since the last call.
std::string takeConsole();

} // namespace cli
