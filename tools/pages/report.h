// SPDX-License-Identifier: MIT
// What a page found out: one answer, as a value for JSON and as a table for people.
#pragma once

#include "pages/table.h"
#include "pages/value.h"

#include <string>
#include <vector>

namespace pages {

struct Report {
    Value json = {};
    Table table = {};
    std::string chart = {};              // lines for people, instead of the table; any bytes in the names
    std::string raw = {};                // for scripts, byte for byte; instead of the table where not empty
    std::vector<std::string> notes = {}; // words for people, beside the data
};

// One value, alone in its line.
inline Report single(const char *key, const std::string &value) {
    return {.json = Value::object({{key, value}}), .raw = value + "\n"};
}

} // namespace pages
