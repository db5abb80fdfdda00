// SPDX-License-Identifier: MIT
#pragma once

#include "store/boot.h"

#include <iosfwd>

namespace sandbox {

// One line a difference: `+ PATH = "value"`, `- PATH = "value"`, or `~ PATH: "before" -> "after"`; an object that comes
// or goes has no value.
void printDifferences(const std::vector<Difference> &differences, std::ostream &out);

} // namespace sandbox
