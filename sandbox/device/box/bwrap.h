// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace box {

// Runs bubblewrap with `arguments` (its own path first) and, in its box, the init with `command`. Until the command
// ends, the keyboard's signals are the command's business, and a request to end is passed on to it. Returns the
// command's exit code. Throws an Obstacle when bubblewrap fails.
int runBwrap(std::vector<std::string> arguments, const std::vector<std::string> &command);

} // namespace box
