// SPDX-License-Identifier: MIT
#pragma once

#include "store/boot.h"

#include <iosfwd>

namespace sandbox {

// One line a difference: `+ PATH = "value"`, `- PATH = "value"`, or `~ PATH: "before" -> "after"`; an object that comes
// or goes has no value. Secrets that are not empty are (hidden), unless `secrets` are to be shown.
void printDifferences(const std::vector<Difference> &differences, bool secrets, std::ostream &out);

} // namespace sandbox
