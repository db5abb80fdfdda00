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
    int bars = -1;               // 0 to 4: the text is a signal, which bars show as well
    const char *remark = "";     // behind the text, for people alone
    std::string forScripts = {}; // instead of the text; "": the text
};

using Row = std::vector<Cell>;

struct Table {
    std::vector<std::string> headings = {};        // none: no heading line, as many columns as the first row has
    std::vector<std::string> furtherHeadings = {}; // of columns behind these, for scripts and whoever names them
    std::vector<Row> rows = {};
    std::vector<Row> forScripts = {}; // instead of the rows: one fact a cell; none: the rows do
    std::vector<std::string> leastNeeded =
        {}; // headings of columns that may be missing on a narrow terminal, first first
};

} // namespace pages
