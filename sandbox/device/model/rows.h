// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace device {

// An object and the running values of its own parameters.
struct Row {
    std::string path; // with a final dot
    std::map<std::string, std::string, std::less<>> values;

    // "" when there is no such parameter.
    [[nodiscard]] const std::string &text(std::string_view name) const;
    [[nodiscard]] bool has(std::string_view name) const { return values.contains(name); }
    // A flag, which gateways write as true, True or 1; `absent` where there is no such parameter.
    [[nodiscard]] bool flag(std::string_view name, bool absent = false) const;
    // 0 for what is not a number.
    [[nodiscard]] int number(std::string_view name) const;
};

// The instances of a table in their order, or the one object that the path names. None when it does not exist: a
// gateway need not have everything.
std::vector<Row> rowsOf(sandbox::Database &database, const std::string &path);

} // namespace device
