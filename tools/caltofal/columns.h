// SPDX-License-Identifier: MIT
#pragma once

#include "pages/table.h"

#include <string>
#include <vector>

namespace cli {

// A table with some of its columns, in that order, by their headings or the beginnings of these in any case of letters.
// Throws Usage where none or several begin so.
pages::Table withColumns(const pages::Table &table, const std::vector<std::string> &names);

// A table without the columns of these headings.
pages::Table withoutColumns(const pages::Table &table, const std::vector<std::string> &headings);

} // namespace cli
