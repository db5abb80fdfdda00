// SPDX-License-Identifier: MIT
// Aligned columns for people.
#pragma once

#include <string>
#include <vector>

namespace cli {

enum class Style { Plain, Heading, Good, Bad };

struct Cell {
    std::string text; // what is not printable is shown escaped
    Style style = Style::Plain;
};

struct Table {
    std::vector<std::string> headings; // none: no heading line, as many columns as the first row has
    std::vector<std::vector<Cell>> rows;
};

// The lines of a table. Nothing is ever cut.
std::string render(const Table &table, bool colour);

} // namespace cli
