// SPDX-License-Identifier: MIT
#include "tool/json_rows.h"

#include <iostream>
#include <nlohmann/json.hpp>

namespace sandbox {
namespace {

using Json = nlohmann::ordered_json;

struct ToJson {
    Json operator()(std::monostate /*nothing*/) const { return nullptr; }
    template <class Value>
    Json operator()(const Value &value) const {
        return value;
    }
};

} // namespace

void printJson(const std::vector<JsonRow> &rows) {
    Json array = Json::array();
    for (const JsonRow &row : rows) {
        Json object = Json::object();
        for (const auto &[name, value] : row) {
            object[name] = std::visit(ToJson(), value.value());
        }
        array.push_back(std::move(object));
    }
    std::cout << array.dump(2) << '\n';
}

} // namespace sandbox
