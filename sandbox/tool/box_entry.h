// SPDX-License-Identifier: MIT
//
// What the commands that enter the device box share.
#pragma once

#include "tool/command.h"

#include <string>
#include <vector>

namespace sandbox {

// The option that names host directories to be shown in the box as well.
void addShown(Command &command, std::vector<std::string> &shown);

// Runs a program in the box of the chosen gateway and makes its exit code the tool's; 77, and a line on standard error,
// where there can be no box.
void enterBox(Tool &tool, const std::vector<std::string> &shown, std::vector<std::string> program);

} // namespace sandbox
