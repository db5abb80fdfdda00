// SPDX-License-Identifier: MIT
#include "exchange/dump/row.h"

#include <algorithm>
#include <cctype>

namespace sandbox {

std::string exampleOf(const DumpRow &row) {
    const bool path =
        row.path.find('.') != std::string::npos && std::all_of(row.path.begin(), row.path.end(), [](unsigned char c) {
            return std::isalnum(c) != 0 ||
                   std::string_view("._-{}[]").find(static_cast<char>(c)) != std::string_view::npos;
        });
    return path ? row.path : "line " + std::to_string(row.line);
}

} // namespace sandbox
