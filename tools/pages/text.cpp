// SPDX-License-Identifier: MIT
#include "pages/text.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace pages {
namespace {

constexpr char kDigits[] = "0123456789abcdef";
constexpr size_t kQuotedMax = 40;

// Endings of the names of parameters whose values are free text.
constexpr std::string_view kFreeText[] = {
    "Name",         "Alias", "SSID",  "Description", "Passphrase", "Password", "Key",    "Version",
    "SerialNumber", "PIN",   "Label", "Username",    "Contact",    "Location", "Secret",
};

bool isFreeText(std::string_view parameter) {
    return std::any_of(std::begin(kFreeText), std::end(kFreeText),
                       [&](std::string_view ending) { return parameter.ends_with(ending); });
}

// A decimal number as a program would write it: no sign but '-', no leading zeros. Anything else may mean its digits.
template <class Number>
bool readNumber(std::string_view value, Number &number) {
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return error == std::errc() && end == value.data() + value.size() && std::to_string(number) == value;
}

// Characters by their first byte: how many bytes they have, and what the second may be.
struct Lead {
    unsigned char first, last;
    unsigned char length;
    unsigned char secondFirst, secondLast;
};
constexpr Lead kLeads[] = {
    {0x00, 0x7f, 1, 0, 0},       {0xc2, 0xdf, 2, 0x80, 0xbf}, {0xe0, 0xe0, 3, 0xa0, 0xbf},
    {0xe1, 0xec, 3, 0x80, 0xbf}, {0xed, 0xed, 3, 0x80, 0x9f}, {0xee, 0xef, 3, 0x80, 0xbf},
    {0xf0, 0xf0, 4, 0x90, 0xbf}, {0xf1, 0xf3, 4, 0x80, 0xbf}, {0xf4, 0xf4, 4, 0x80, 0x8f},
};

bool isBetween(char byte, unsigned char first, unsigned char last) {
    const auto value = static_cast<unsigned char>(byte);
    return value >= first && value <= last;
}

} // namespace

size_t utf8Length(std::string_view text) {
    for (const Lead &lead : kLeads) {
        if (text.empty() || !isBetween(text[0], lead.first, lead.last)) {
            continue;
        }
        const bool whole =
            text.size() >= lead.length && (lead.length < 2 || isBetween(text[1], lead.secondFirst, lead.secondLast)) &&
            (lead.length < 3 || isBetween(text[2], 0x80, 0xbf)) && (lead.length < 4 || isBetween(text[3], 0x80, 0xbf));
        return whole ? lead.length : 0;
    }
    return 0;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const size_t length = utf8Length(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
    }
    return true;
}

std::string hexOf(std::string_view text) {
    std::string hex;
    hex.reserve(2 * text.size());
    for (const unsigned char byte : text) {
        hex += kDigits[byte >> 4];
        hex += kDigits[byte & 0xf];
    }
    return hex;
}

std::string inQuotes(std::string_view text) {
    size_t shown = std::min(text.size(), kQuotedMax);
    while (shown > 0 && shown < text.size() && (text[shown] & 0xc0) == 0x80) { // not in the middle of a character
        --shown;
    }
    std::string result;
    for (const char c : text.substr(0, shown)) {
        result += c == '\0' ? "\\u0000" : std::string(1, c); // what() of an exception would end there
    }
    return '"' + result + (shown < text.size() ? "...\"" : "\"");
}

std::string plainPaths(const std::string &text) {
    if (!text.starts_with("Device.")) {
        return text;
    }
    std::string result;
    for (size_t i = 0; i < text.size(); ++i) {
        const bool last = text[i] == '.' && (i + 1 == text.size() || text[i + 1] == ',');
        result += last ? "" : std::string(1, text[i]);
    }
    return result;
}

Value typed(std::string_view parameter, std::string_view value) {
    if (isFreeText(parameter)) {
        return value;
    }
    if (value == "true" || value == "false") {
        return value == "true";
    }
    int64_t number = 0;
    uint64_t large = 0;
    if (readNumber(value, number)) {
        return number;
    }
    return readNumber(value, large) ? Value(large) : Value(value);
}

Value flagOf(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](unsigned char c) { return tolower(c); });
    const bool isTrue = lower == "true" || lower == "1";
    return isTrue || lower == "false" || lower == "0" ? Value(isTrue) : Value();
}

std::string spelledLike(const Value &now, const std::string &value) {
    if (now.isFlag()) {
        const Value flag = flagOf(value);
        return flag.isNull() ? value : flag.flag() ? "true" : "false";
    }
    const size_t sign = value.starts_with('+') ? 1 : 0;
    const bool digits = value.size() > sign && value.find_first_not_of("0123456789", sign) == std::string::npos;
    if (!now.isNumber() || !digits) {
        return value;
    }
    return value.substr(std::min(value.find_first_not_of('0', sign), value.size() - 1));
}

} // namespace pages
