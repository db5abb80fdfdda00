// SPDX-License-Identifier: MIT
// What is written to the console: to /dev/null, or into memory while a run is recorded.
#pragma once

#include <string>

namespace bench {

// Keeps what is written from now on.
void startConsole();

// What was written since; the end of it.
std::string takeConsole();

} // namespace bench
