// SPDX-License-Identifier: MIT
#include "caltofal/columns.h"

#include "pages/failure.h"
#include "pages/text.h"

#include <algorithm>
#include <cctype>

namespace cli {
namespace {

using pages::Usage;

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return toupper(c); });
    return text;
}

size_t columnNamed(const std::vector<std::string> &headings, const std::string &name) {
    const std::string wanted = upper(name);
    const auto exact = std::find_if(headings.begin(), headings.end(),
                                    [&](const std::string &heading) { return upper(heading) == wanted; });
    if (exact != headings.end()) {
        return static_cast<size_t>(exact - headings.begin());
    }
    const auto begins = [&](const std::string &heading) {
        return !wanted.empty() && upper(heading).starts_with(wanted);
    };
    const auto found = std::find_if(headings.begin(), headings.end(), begins);
    if (found == headings.end() || std::count_if(headings.begin(), headings.end(), begins) > 1) {
        throw Usage("--columns: " + pages::inQuotes(name) +
                    (found == headings.end() ? " is not a column" : " is the beginning of several columns") +
                    "; there are " + pages::joined(headings));
    }
    return static_cast<size_t>(found - headings.begin());
}

// Of the columns with these headings.
pages::Table chosen(const pages::Table &table, const std::vector<std::string> &headings,
                    const std::vector<size_t> &places) {
    pages::Table result;
    for (const size_t place : places) {
        result.headings.push_back(headings[place]);
    }
    for (const pages::Row &row : table.rows) {
        pages::Row &cells = result.rows.emplace_back();
        for (const size_t place : places) {
            cells.push_back(place < row.size() ? row[place] : pages::Cell());
        }
    }
    return result;
}

} // namespace

pages::Table withColumns(const pages::Table &table, const std::vector<std::string> &names) {
    if (table.headings.empty()) {
        throw Usage("--columns: this page has no columns with headings");
    }
    std::vector<std::string> headings = table.headings;
    headings.insert(headings.end(), table.furtherHeadings.begin(), table.furtherHeadings.end());
    std::vector<size_t> places(names.size());
    std::transform(names.begin(), names.end(), places.begin(),
                   [&](const std::string &name) { return columnNamed(headings, name); });
    return chosen(table, headings, places);
}

pages::Table withoutColumns(const pages::Table &table, const std::vector<std::string> &headings) {
    std::vector<size_t> places;
    for (size_t i = 0; i < table.headings.size(); ++i) {
        if (std::find(headings.begin(), headings.end(), table.headings[i]) == headings.end()) {
            places.push_back(i);
        }
    }
    return chosen(table, table.headings, places);
}

} // namespace cli
