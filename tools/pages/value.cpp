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

Value Value::object(std::initializer_list<Member> members) {
    Value result;
    result.data_ = Object(members);
    return result;
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
    return found == all.end() ? all.emplace_back(Member{std::string(key), {}}).value : found->value;
}

void Value::push(Value item) {
    if (isNull()) {
        data_ = List();
    }
    std::get<List>(data_).push_back(std::move(item));
}

} // namespace pages
