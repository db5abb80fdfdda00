// SPDX-License-Identifier: MIT
#pragma once

#include "pages/table.h"

#include <string>

namespace cli {

// The lines of a table; what is not printable is escaped. Nothing is ever cut.
std::string render(const pages::Table &table, bool colour);

} // namespace cli
