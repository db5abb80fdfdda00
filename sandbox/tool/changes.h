// SPDX-License-Identifier: MIT
#pragma once

#include "store/boot.h"

#include <iosfwd>

namespace sandbox {

// One line a change: `+ PATH = "value"`, `- PATH = "value"`, or `~ PATH: "before" -> "after"`; an object that comes or
// goes has no value.
void printChanges(const std::vector<Change> &changes, std::ostream &out);

} // namespace sandbox
