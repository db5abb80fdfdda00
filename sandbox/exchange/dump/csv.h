// SPDX-License-Identifier: MIT
//
// Device exports as CSV: a header that names at least a path and a value, in any spelling and order.
#pragma once

#include "exchange/dump/row.h"

#include <string_view>

namespace sandbox {

// Whether the text begins with such a header, and not with that of this project's own CSV.
bool isCsvDump(std::string_view text);

Dump readCsvDump(std::string_view text, const std::string &file);

} // namespace sandbox
