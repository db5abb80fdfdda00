// SPDX-License-Identifier: MIT
#pragma once

#include "pages/table.h"

#include <string>
#include <vector>

namespace cli {

struct Look {
    bool colour = false;
    size_t width = 0; // of the terminal: longer lines are folded within their columns; 0: as wide as they are
};

// The lines of a table; what is not printable is escaped. No cell is ever cut.
std::string render(const pages::Table &table, const Look &look);

// The headings of the columns that render() leaves out, as the terminal has no room for them.
std::vector<std::string> withoutRoom(const pages::Table &table, const Look &look);

// The cells alone, with a tab between two.
std::string renderTerse(const pages::Table &table);

} // namespace cli
