// SPDX-License-Identifier: MIT
#include "caltofal/render.h"

#include "caltofal/columns.h"
#include "caltofal/fold.h"
#include "caltofal/printable.h"
#include "pages/text.h"

#include <cstdlib>
#include <libsmartcols.h>
#include <limits>
#include <memory>
#include <new>
#include <sstream>

namespace cli {

using namespace pages;

namespace {

struct Release {
    void operator()(libscols_table *table) const { scols_unref_table(table); }
    void operator()(char *text) const { free(text); } // NOLINT(cppcoreguidelines-no-malloc): smartcols allocates it
};

using Scols = std::unique_ptr<libscols_table, Release>;

const char *colourOf(Style style) {
    switch (style) {
    case Style::Heading:
        return "bold";
    case Style::Good:
        return "green";
    case Style::Bad:
        return "red";
    case Style::Plain:
        break;
    }
    return nullptr;
}

// A backslash twice: what printable() makes of other bytes begins with one.
std::string cellText(const std::string &text) {
    std::string result;
    for (const char c : text) {
        result += c == '\\' ? "\\\\" : std::string(1, c);
    }
    return printable(result);
}

std::string barsOf(int bars) {
    constexpr size_t kMost = 4;
    const auto count = static_cast<size_t>(bars);
    if (!localeIsUtf8()) {
        return " " + std::string(count, '|') + std::string(kMost - count, '.');
    }
    constexpr const char *kBars[kMost] = {"\u2582", "\u2584", "\u2586", "\u2588"};
    std::string result = " ";
    for (size_t i = 0; i < kMost; ++i) {
        result += i < count ? kBars[i] : " ";
    }
    return result;
}

// The table with the texts that are drawn.
Table drawn(const Table &table) {
    Table result = table;
    for (Row &row : result.rows) {
        for (Cell &cell : row) {
            cell.text = cellText(cell.text) + cell.remark + (cell.bars < 0 ? "" : barsOf(cell.bars));
        }
    }
    return result;
}

Scols newTable(const std::vector<std::string> &headings, size_t columns, bool colour, size_t gap) {
    Scols result(scols_new_table());
    if (!result) {
        throw std::bad_alloc();
    }
    scols_table_enable_colors(result.get(), colour);
    scols_table_enable_noheadings(result.get(), headings.empty());
    scols_table_enable_noencoding(result.get(), true);
    scols_table_set_termforce(result.get(), SCOLS_TERMFORCE_NEVER);
    scols_table_set_column_separator(result.get(), std::string(gap, ' ').c_str());
    for (size_t i = 0; i < columns; ++i) {
        scols_table_new_column(result.get(), headings.empty() ? "" : headings[i].c_str(), 0, 0);
    }
    return result;
}

void addRow(libscols_table *table, const Row &row, const std::vector<size_t> &columns) {
    libscols_line *line = scols_table_new_line(table, nullptr);
    if (!line) {
        throw std::bad_alloc();
    }
    for (size_t i = 0; i < columns.size() && columns[i] < row.size(); ++i) {
        const Cell &cell = row[columns[i]];
        if (scols_line_set_data(line, i, cell.text.c_str()) != 0) {
            throw std::bad_alloc();
        }
        if (const char *colour = colourOf(cell.style)) {
            scols_cell_set_color(scols_line_get_cell(line, i), colour);
        }
    }
}

std::string withoutTrailingBlanks(const char *lines) {
    std::istringstream input(lines);
    std::string result;
    for (std::string line; std::getline(input, line);) {
        result += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
    }
    return result;
}

std::string linesOf(const Table &table, const std::vector<size_t> &columns, bool colour, size_t gap) {
    std::vector<std::string> headings;
    for (const size_t column : columns) {
        if (!table.headings.empty()) {
            headings.push_back(table.headings[column]);
        }
    }
    const Scols scols = newTable(headings, columns.size(), colour, gap);
    for (const Row &row : table.rows) {
        addRow(scols.get(), row, columns);
    }
    char *lines = nullptr;
    if (scols_print_table_to_string(scols.get(), &lines) != 0) {
        throw std::bad_alloc();
    }
    const std::unique_ptr<char, Release> owner(lines);
    return withoutTrailingBlanks(lines);
}

// A line of each group of columns in turn.
std::string interleaved(const std::vector<std::string> &groups) {
    std::vector<std::istringstream> inputs(groups.begin(), groups.end());
    std::string result;
    for (std::string line; std::getline(inputs.front(), line);) {
        result += line + "\n";
        for (size_t i = 1; i < inputs.size(); ++i) {
            std::getline(inputs[i], line);
            result += line.empty() ? "" : kContinuation + line + "\n";
        }
    }
    return result;
}

} // namespace

std::string render(const Table &table, const Look &look) {
    if (table.rows.empty()) {
        return {};
    }
    Table shown = drawn(table);
    const bool folds = look.width > 0;
    if (folds && shown.headings.empty()) {
        shown = withFoldedValues(shown, look.width);
    } else if (folds) {
        shown = groupedByObject(withoutColumns(shown, columnsToLeave(shown, look.width)), look.width);
    }
    const size_t width = folds ? look.width : std::numeric_limits<size_t>::max();
    std::vector<std::string> groups;
    const size_t gap = gapFor(shown, width);
    for (const std::vector<size_t> &columns : columnGroups(shown, width, gap)) {
        groups.push_back(linesOf(shown, columns, look.colour, gap));
    }
    return interleaved(groups);
}

std::vector<std::string> withoutRoom(const Table &table, const Look &look) {
    return look.width == 0 || table.rows.empty() ? std::vector<std::string>()
                                                 : columnsToLeave(drawn(table), look.width);
}

std::string renderTerse(const Table &table) {
    std::string result;
    for (const Row &row : table.forScripts.empty() ? table.rows : table.forScripts) {
        for (size_t i = 0; i < row.size(); ++i) {
            result += (i == 0 ? "" : "\t") + cellText(row[i].forScripts.empty() ? row[i].text : row[i].forScripts);
        }
        result += "\n";
    }
    return result;
}

} // namespace cli
