// SPDX-License-Identifier: MIT
// A value of a page: what JSON knows, members in the order in which they were set. Most files that make pages need no
// more than this; json.h prints and reads it. Nothing is defined here, so that those files compile quickly.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace pages {

struct Member;

class Value {
  public:
    using List = std::vector<Value>;
    using Object = std::vector<Member>;

    Value(); // null
    Value(bool flag);
    Value(int32_t number);
    Value(uint32_t number);
    Value(int64_t number);
    Value(uint64_t number);
    Value(double number);
    Value(const char *text);
    Value(std::string_view text);
    Value(std::string text);
    Value(const Value &other);
    Value(Value &&other) noexcept;
    Value &operator=(const Value &other);
    Value &operator=(Value &&other) noexcept;
    ~Value();

    static Value list();
    static Value object(std::initializer_list<Member> members = {});

    [[nodiscard]] bool isNull() const;
    [[nodiscard]] bool isFlag() const;
    [[nodiscard]] bool isFraction() const;
    [[nodiscard]] bool isNumber() const;
    [[nodiscard]] bool isText() const;
    [[nodiscard]] bool isList() const;
    [[nodiscard]] bool isObject() const;

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

    friend bool operator==(const Value &one, const Value &other);

  private:
    std::variant<std::monostate, bool, int64_t, uint64_t, double, std::string, List, Object> data_;
};

struct Member {
    Member(std::string name, Value held);
    Member(const Member &other);
    Member(Member &&other) noexcept;
    Member &operator=(const Member &other);
    Member &operator=(Member &&other) noexcept;
    ~Member();

    std::string key;
    Value value;

    friend bool operator==(const Member &one, const Member &other);
};

} // namespace pages
