// SPDX-License-Identifier: MIT
//
// Dumps as text: "path=value" a line, with or without blanks around "=", as tools on a device print them.
#pragma once

#include "exchange/dump/row.h"

namespace sandbox {

// Whether every line is of that form, or most are and none could be a gateway file's, the first one below a root.
// Nothing is in it that makes a gateway file: comments, annotations, patterns.
bool isTextDump(std::string_view text);

// Values are taken byte for byte; where all of them are in quotes, without these.
Dump readTextDump(std::string_view text);

} // namespace sandbox
