// SPDX-License-Identifier: MIT
#include "tool/json_rows.h"

#include "exchange/json_tree.h"

#include <iostream>

namespace sandbox {
namespace {

struct ToText {
    std::string operator()(std::monostate /*nothing*/) const { return "null"; }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(int64_t number) const { return std::to_string(number); }
    std::string operator()(const std::string &text) const { return quotedJson(text); }
};

void print(const JsonRow &row) {
    const char *separator = "";
    std::cout << "  {";
    for (const auto &[name, value] : row) {
        std::cout << separator << "\n    " << quotedJson(name) << ": " << std::visit(ToText(), value.value());
        separator = ",";
    }
    std::cout << (row.empty() ? "}" : "\n  }");
}

} // namespace

void printJson(const std::vector<JsonRow> &rows) {
    const char *separator = "";
    std::cout << '[';
    for (const JsonRow &row : rows) {
        std::cout << separator << '\n';
        print(row);
        separator = ",";
    }
    std::cout << (rows.empty() ? "]\n" : "\n]\n");
}

} // namespace sandbox
