// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace box {

// Runs bubblewrap with `arguments` (its own path first) and, in its box, the init with `command`. Until the command
// ends, SIGINT, SIGQUIT, SIGTERM and SIGHUP are the command's business: those that do not reach it from the terminal
// are passed on, also such as came before it ran. Returns the command's exit code. Throws an Obstacle when bubblewrap
// fails.
int runBwrap(std::vector<std::string> arguments, const std::vector<std::string> &command);

} // namespace box
