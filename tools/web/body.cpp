// SPDX-License-Identifier: MIT
#include "body.h"

#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/json.h"
#include "pages/text.h"
#include "request.h"

#include <algorithm>

namespace web {
namespace {

using pages::Usage;
using pages::Value;

std::string valueText(const std::string &name, const Value &value) {
    if (value.isFraction()) { // it is not known any more how it was written
        throw Usage(pages::inQuotes(name) + ": a number that is not a whole one of 64 bits is given as a text");
    }
    if (value.isFlag() || value.isNumber()) {
        return pages::toJson(value);
    }
    if (!value.isText()) {
        throw Usage(pages::inQuotes(name) + ": a value is a text, a number, true or false");
    }
    if (value.text().find('\0') != std::string::npos) {
        throw Usage(pages::inQuotes(name) + ": a text cannot hold a NUL");
    }
    return value.text();
}

bool isName(const std::string &text) {
    return !text.empty() && text.find_first_of({"=\0", 2}) == std::string::npos;
}

} // namespace

Value parseBody(std::string_view body) {
    Value parsed = body.empty() ? Value::object() : pages::fromJson(body, kDepthMax);
    if (!parsed.isObject()) {
        throw Usage("the body is not a JSON object");
    }
    return parsed;
}

std::vector<pages::Parameter> parametersOf(const Value &object) {
    std::vector<pages::Parameter> result;
    for (const auto &[name, value] : object.members()) {
        if (!isName(name)) {
            throw Usage(pages::inQuotes(name) + " is not a parameter's name");
        }
        result.push_back({name, valueText(name, value)});
    }
    if (result.empty()) {
        throw Usage(R"(there is nothing to set: give {"NAME": VALUE})");
    }
    return result;
}

std::vector<pages::Object> objectsOf(const Value &object) {
    std::vector<pages::Object> result;
    for (const auto &[path, values] : object.members()) {
        if (!path.starts_with("Device.") || !isName(path) || !values.isObject()) {
            throw Usage(pages::inQuotes(path) + R"(: give {"Device.OBJECT.": {"NAME": VALUE}})");
        }
        const bool twice = std::any_of(result.begin(), result.end(), [&path = path](const pages::Object &other) {
            return pages::withoutDot(other.name) == pages::withoutDot(path);
        });
        if (twice) {
            throw Usage(pages::inQuotes(path) + " is given twice");
        }
        result.push_back({pages::checkedPath(path), parametersOf(values)});
    }
    if (result.empty()) {
        throw Usage(R"(there is nothing to set: give {"Device.OBJECT.": {"NAME": VALUE}})");
    }
    return result;
}

std::string textOf(const Value &object, std::string_view name) {
    const Value &value = object[name];
    if (!value.isNull() && !value.isText()) {
        throw Usage(std::string(name) + " is not a text");
    }
    return value.isNull() ? "" : valueText(std::string(name), value);
}

void allowMembers(const Value &object, std::initializer_list<std::string_view> names) {
    for (const auto &[name, value] : object.members()) {
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            throw Usage(pages::inQuotes(name) + " is not understood here");
        }
    }
}

} // namespace web
