// SPDX-License-Identifier: MIT
#include "value/path.h"

#include "value/value_syntax.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace sandbox {
namespace {

constexpr size_t kInstanceDigits = 10;

bool isNameStart(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || isDigit(c);
}

bool isNameRest(char c) {
    return isNameStart(c) || c == '-';
}

std::string padded(uint32_t instance) {
    const std::string digits = std::to_string(instance);
    return std::string(kInstanceDigits - digits.size(), '0') + digits;
}

std::string_view withoutDot(std::string_view path) {
    return path.ends_with('.') ? path.substr(0, path.size() - 1) : path;
}

// As paths write it: without leading zeros.
bool isPlainInstance(std::string_view component) {
    return instanceOf(component) && component.front() != '0';
}

} // namespace

std::vector<std::string_view> components(std::string_view path) {
    std::vector<std::string_view> result;
    std::string_view rest = withoutDot(path);
    for (size_t dot = rest.find('.'); dot != std::string_view::npos; dot = rest.find('.')) {
        result.push_back(rest.substr(0, dot));
        rest.remove_prefix(dot + 1);
    }
    result.push_back(rest);
    return result;
}

std::string_view pathAtFront(std::string_view text) {
    const bool root = text.starts_with("Device.") || text.starts_with("InternetGatewayDevice.");
    const auto *end = std::find_if_not(text.begin(), text.end(),
                                       [](char c) { return isNameRest(c) || c == '.' || c == '{' || c == '}'; });
    return root ? text.substr(0, static_cast<size_t>(end - text.begin())) : "";
}

bool isName(std::string_view text) {
    return !text.empty() && text.size() <= kPathMax && isNameStart(text.front()) &&
           std::all_of(text.begin(), text.end(), isNameRest) && !std::all_of(text.begin(), text.end(), isDigit);
}

std::optional<uint32_t> instanceOf(std::string_view component) {
    uint32_t number = 0;
    const char *end = component.data() + component.size();
    const auto [parsed, error] = std::from_chars(component.data(), end, number);
    const bool whole = error == std::errc() && parsed == end;
    if (!whole || number == 0 || number > static_cast<uint32_t>(std::numeric_limits<int32_t>::max())) {
        return std::nullopt;
    }
    return number;
}

std::string instanceKey(std::string_view tableKey, uint32_t instance) {
    return std::string(tableKey) + padded(instance) + ".";
}

std::optional<std::string> keyOf(std::string_view path) {
    if (withoutDot(path).size() > kPathMax) {
        return std::nullopt;
    }
    std::string key;
    bool afterName = false;
    for (const std::string_view component : components(path)) {
        const bool name = isName(component);
        if (!name && !(afterName && isPlainInstance(component))) {
            return std::nullopt;
        }
        afterName = name;
        const std::optional<uint32_t> instance = instanceOf(component);
        key += instance ? padded(*instance) : std::string(component);
        key += '.';
    }
    return key;
}

std::string pathOf(std::string_view key) {
    std::string path;
    for (const std::string_view component : components(key)) {
        const std::optional<uint32_t> instance = instanceOf(component);
        if (!path.empty()) {
            path += '.';
        }
        path += instance ? std::to_string(*instance) : std::string(component);
    }
    return path;
}

std::string keyEnd(std::string_view key) {
    std::string end(key);
    end.back() = '.' + 1;
    return end;
}

std::string_view lastComponent(std::string_view key) {
    const std::string_view body = withoutDot(key);
    const size_t dot = body.rfind('.');
    return dot == std::string_view::npos ? body : body.substr(dot + 1);
}

std::string_view parentKey(std::string_view key) {
    return key.substr(0, withoutDot(key).size() - lastComponent(key).size());
}

bool componentMatches(std::string_view component, std::string_view actual) {
    if (component == kAnyInstance) {
        return actual == kAnyInstance || instanceOf(actual).has_value();
    }
    const std::optional<uint32_t> number = instanceOf(component);
    return number ? number == instanceOf(actual) : component == actual;
}

std::string patternOf(std::string_view key) {
    std::string pattern;
    for (const std::string_view component : components(key)) {
        pattern += instanceOf(component) ? kAnyInstance : component;
        pattern += '.';
    }
    return pattern;
}

bool isPattern(std::string_view text) {
    if (!text.ends_with('.') || text.size() > kPathMax) {
        return false;
    }
    bool open = false;
    bool afterName = false;
    for (const std::string_view component : components(text)) {
        const bool name = isName(component);
        const bool any = component == kAnyInstance;
        if (!name && !(afterName && (any || isPlainInstance(component)))) {
            return false;
        }
        open = open || any;
        afterName = name;
    }
    return open;
}

} // namespace sandbox
