// SPDX-License-Identifier: MIT
#include "caltofal/render.h"

#include "caltofal/printable.h"

#include <cstdlib>
#include <libsmartcols.h>
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

Scols newTable(const Table &table, bool colour) {
    Scols result(scols_new_table());
    if (!result) {
        throw std::bad_alloc();
    }
    scols_table_enable_colors(result.get(), colour);
    scols_table_enable_noheadings(result.get(), table.headings.empty());
    scols_table_enable_noencoding(result.get(), true);
    scols_table_set_termforce(result.get(), SCOLS_TERMFORCE_NEVER);
    scols_table_set_column_separator(result.get(), "  ");
    const size_t columns = table.headings.empty() ? table.rows.front().size() : table.headings.size();
    for (size_t i = 0; i < columns; ++i) {
        scols_table_new_column(result.get(), table.headings.empty() ? "" : table.headings[i].c_str(), 0, 0);
    }
    return result;
}

// A backslash twice: what printable() makes of other bytes begins with one.
std::string cellText(const std::string &text) {
    std::string result;
    for (const char c : text) {
        result += c == '\\' ? "\\\\" : std::string(1, c);
    }
    return printable(result);
}

void addRow(libscols_table *table, const Row &row) {
    libscols_line *line = scols_table_new_line(table, nullptr);
    if (!line) {
        throw std::bad_alloc();
    }
    for (size_t i = 0; i < row.size(); ++i) {
        if (scols_line_set_data(line, i, cellText(row[i].text).c_str()) != 0) {
            throw std::bad_alloc();
        }
        if (const char *colour = colourOf(row[i].style)) {
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

} // namespace

std::string render(const Table &table, bool colour) {
    if (table.rows.empty()) {
        return {};
    }
    const Scols scols = newTable(table, colour);
    for (const Row &row : table.rows) {
        addRow(scols.get(), row);
    }
    char *lines = nullptr;
    if (scols_print_table_to_string(scols.get(), &lines) != 0) {
        throw std::bad_alloc();
    }
    const std::unique_ptr<char, Release> owner(lines);
    return withoutTrailingBlanks(lines);
}

} // namespace cli
