// SPDX-License-Identifier: MIT
// Tables that are wider than the terminal. Nothing is cut.
#pragma once

#include "pages/table.h"

#include <string>
#include <vector>

namespace cli {

// The texts of a table here are printable.

size_t displayWidth(const std::string &text);

// A text broken at blanks and commas into lines of that width, 0 for any, the lines after the first one indented.
std::string foldedText(const std::string &text, size_t width);

// The blanks between two columns: one where the table is too wide with two.
size_t gapFor(const pages::Table &table, size_t width);

// The headings of the least needed columns that must leave for the others to have room in one line.
std::vector<std::string> columnsToLeave(const pages::Table &table, size_t width);

// A table that is too wide, with paths in its first column: the objects stand on lines of their own, the names below.
pages::Table groupedByObject(const pages::Table &table, size_t width);

// Which columns stand together in a line of that width: as many as fit, the rest on continuation lines, which begin
// with kContinuation.
std::vector<std::vector<size_t>> columnGroups(const pages::Table &table, size_t width, size_t gap);
inline constexpr const char *kContinuation = "  ";

// A table of labels and values with long values on several rows, broken at blanks and commas where there are some.
pages::Table withFoldedValues(const pages::Table &table, size_t width);

} // namespace cli
