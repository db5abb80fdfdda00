// SPDX-License-Identifier: MIT
// A value of a page: what JSON knows, members in the order in which they were set. Most files that make pages need no
// more than this; json.h prints and reads it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace pages {

struct Member;

class Value {
  public:
    using List = std::vector<Value>;
    using Object = std::vector<Member>;

    Value() = default; // null
    template <class Number>
    requires std::is_arithmetic_v<Number> Value(Number number)
        : data_(stored(number)) {} // NOLINT(google-explicit-constructor)
    Value(const char *text) : data_(std::string(text)) {}
    Value(std::string_view text) : data_(std::string(text)) {}
    Value(std::string text) : data_(std::move(text)) {}
    Value(List list) : data_(std::move(list)) {}

    static Value list() { return List(); }
    static Value object(std::initializer_list<Member> members = {});

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(data_); }
    [[nodiscard]] bool isFlag() const { return std::holds_alternative<bool>(data_); }
    [[nodiscard]] bool isFraction() const { return std::holds_alternative<double>(data_); }
    [[nodiscard]] bool isNumber() const;
    [[nodiscard]] bool isText() const { return std::holds_alternative<std::string>(data_); }
    [[nodiscard]] bool isList() const { return std::holds_alternative<List>(data_); }
    [[nodiscard]] bool isObject() const { return std::holds_alternative<Object>(data_); }

    // What the value holds; false, 0, "" or nothing where it is of another kind.
    [[nodiscard]] bool flag() const;
    [[nodiscard]] int64_t whole() const;
    [[nodiscard]] double number() const;
    [[nodiscard]] const std::string &text() const;
    [[nodiscard]] const List &items() const;
    [[nodiscard]] const Object &members() const;

    // A member; null where there is none.
    const Value &operator[](std::string_view key) const;
    // The same to be set; it is made where there is none, as is an object of null.
    Value &operator[](std::string_view key);
    // Adds to a list, which null becomes.
    void push(Value item);

    template <class Visitor>
    auto visit(const Visitor &visitor) const {
        return std::visit(visitor, data_);
    }

    friend bool operator==(const Value &, const Value &) = default;

  private:
    template <class Number>
    static auto stored(Number number) {
        if constexpr (std::is_same_v<Number, bool> || std::is_same_v<Number, double>) {
            return number;
        } else if constexpr (std::is_unsigned_v<Number>) {
            return static_cast<uint64_t>(number);
        } else {
            return static_cast<int64_t>(number);
        }
    }

    std::variant<std::monostate, bool, int64_t, uint64_t, double, std::string, List, Object> data_;
};

struct Member {
    std::string key;
    Value value;

    friend bool operator==(const Member &, const Member &) = default;
};

} // namespace pages
