// SPDX-License-Identifier: MIT
// Aligned columns for people, before they are drawn.
#pragma once

#include <string>
#include <vector>

namespace pages {

enum class Style { Plain, Heading, Good, Bad };

struct Cell {
    std::string text; // any bytes
    Style style = Style::Plain;
    int bars = -1; // 0 to 4: the text is a signal, which bars show as well
};

using Row = std::vector<Cell>;

struct Table {
    std::vector<std::string> headings = {}; // none: no heading line, as many columns as the first row has
    std::vector<Row> rows = {};
};

} // namespace pages
