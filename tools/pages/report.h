// SPDX-License-Identifier: MIT
// What a page found out: one answer, as a value for JSON and as a table for people.
#pragma once

#include "pages/table.h"
#include "pages/value.h"

#include <string>
#include <vector>

namespace pages {

// A line of a chart: what is drawn, in ASCII, and whose it is.
struct ChartLine {
    std::string drawing;
    std::string name = {}; // any bytes
};

struct Report {
    Value json = {};
    Table table = {};
    std::vector<ChartLine> chart = {}; // for people, instead of the table
    std::string raw = {}; // byte for byte; instead of the table where not empty, but not of its rows for scripts
    std::vector<std::string> notes = {}; // words for people, beside the data
};

// One value, alone in its line.
inline Report single(const char *key, const std::string &value) {
    return {.json = Value::object({{key, value}}), .raw = value + "\n"};
}

} // namespace pages
