// SPDX-License-Identifier: MIT
//
// Rows of a list as JSON.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace sandbox {

class JsonValue {
  public:
    JsonValue(bool flag) : value_(flag) {}
    JsonValue(int64_t number) : value_(number) {}
    JsonValue(int number) : value_(static_cast<int64_t>(number)) {}
    JsonValue(std::string text) : value_(std::move(text)) {}
    // null where there is nothing.
    template <class Value>
    JsonValue(const std::optional<Value> &value) {
        if (value) {
            *this = JsonValue(*value);
        }
    }

    const std::variant<std::monostate, bool, int64_t, std::string> &value() const { return value_; }

  private:
    std::variant<std::monostate, bool, int64_t, std::string> value_;
};

// An object: names and values in the order in which they are printed.
using JsonRow = std::vector<std::pair<const char *, JsonValue>>;

// Prints an array of objects to standard output.
void printJson(const std::vector<JsonRow> &rows);

} // namespace sandbox
