// SPDX-License-Identifier: MIT
#include "pages/value.h"

#include <algorithm>

namespace pages {
namespace {

template <class Kind, class Data>
const Kind &heldBy(const Data &data) {
    static const Kind kNone{};
    const Kind *held = std::get_if<Kind>(&data);
    return held ? *held : kNone;
}

} // namespace

Value::Value() = default;
Value::Value(bool flag) : data_(flag) {}
Value::Value(int32_t number) : data_(static_cast<int64_t>(number)) {}
Value::Value(uint32_t number) : data_(static_cast<int64_t>(number)) {}
Value::Value(int64_t number) : data_(number) {}
Value::Value(uint64_t number) : data_(number) {}
Value::Value(double number) : data_(number) {}
Value::Value(const char *text) : data_(std::string(text)) {}
Value::Value(std::string_view text) : data_(std::string(text)) {}
Value::Value(std::string text) : data_(std::move(text)) {}
Value::Value(const Value &other) = default;
Value::Value(Value &&other) noexcept = default;
Value &Value::operator=(const Value &other) = default;
Value &Value::operator=(Value &&other) noexcept = default;
Value::~Value() = default;

bool operator==(const Value &one, const Value &other) {
    return one.data_ == other.data_;
}

Member::Member(std::string name, Value held) : key(std::move(name)), value(std::move(held)) {}
Member::Member(const Member &other) = default;
Member::Member(Member &&other) noexcept = default;
Member &Member::operator=(const Member &other) = default;
Member &Member::operator=(Member &&other) noexcept = default;
Member::~Member() = default;

bool operator==(const Member &one, const Member &other) {
    return one.key == other.key && one.value == other.value;
}

Value Value::list() {
    Value result;
    result.data_ = List();
    return result;
}

Value Value::object(std::initializer_list<Member> members) {
    Value result;
    result.data_ = Object(members);
    return result;
}

bool Value::isNull() const {
    return std::holds_alternative<std::monostate>(data_);
}

bool Value::isFlag() const {
    return std::holds_alternative<bool>(data_);
}

bool Value::isFraction() const {
    return std::holds_alternative<double>(data_);
}

bool Value::isText() const {
    return std::holds_alternative<std::string>(data_);
}

bool Value::isList() const {
    return std::holds_alternative<List>(data_);
}

bool Value::isObject() const {
    return std::holds_alternative<Object>(data_);
}

bool Value::isNumber() const {
    return std::holds_alternative<int64_t>(data_) || std::holds_alternative<uint64_t>(data_) || isFraction();
}

bool Value::flag() const {
    return heldBy<bool>(data_);
}

int64_t Value::whole() const {
    const auto *large = std::get_if<uint64_t>(&data_);
    return large ? static_cast<int64_t>(*large) : heldBy<int64_t>(data_);
}

double Value::number() const {
    return isFraction() ? heldBy<double>(data_) : static_cast<double>(whole());
}

const std::string &Value::text() const {
    return heldBy<std::string>(data_);
}

const Value::List &Value::items() const {
    return heldBy<List>(data_);
}

const Value::Object &Value::members() const {
    return heldBy<Object>(data_);
}

const Value &Value::operator[](std::string_view key) const {
    static const Value kNull;
    const Object &all = members();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Member &member) { return member.key == key; });
    return found == all.end() ? kNull : found->value;
}

Value &Value::operator[](std::string_view key) {
    if (isNull()) {
        data_ = Object();
    }
    auto &all = std::get<Object>(data_);
    const auto found = std::find_if(all.begin(), all.end(), [&](const Member &member) { return member.key == key; });
    return found == all.end() ? all.emplace_back(std::string(key), Value()).value : found->value;
}

void Value::push(Value item) {
    if (isNull()) {
        data_ = List();
    }
    std::get<List>(data_).push_back(std::move(item));
}

} // namespace pages
