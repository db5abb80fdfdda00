// SPDX-License-Identifier: MIT
#include "value/value_syntax.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cctype>
#include <string>

namespace sandbox {
namespace {

// The digits at the front of the text, which are taken off it.
std::string_view takeDigits(std::string_view &text) {
    const auto *end = std::find_if_not(text.begin(), text.end(), isDigit);
    const std::string_view digits = text.substr(0, static_cast<size_t>(end - text.begin()));
    text.remove_prefix(digits.size());
    return digits;
}

bool takeSign(std::string_view &text) {
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    return negative;
}

// A decimal taken apart, without the zeros that do not count.
struct Decimal {
    bool negative;
    std::string_view whole, fraction;

    explicit Decimal(std::string_view text) : negative(takeSign(text)), whole(takeDigits(text)) {
        text.remove_prefix(text.empty() ? 0 : 1);
        fraction = text;
        whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
        fraction = fraction.substr(0, fraction.find_last_not_of('0') + 1);
        negative = negative && !(whole.empty() && fraction.empty());
    }
};

int compareMagnitudes(const Decimal &a, const Decimal &b) {
    if (a.whole.size() != b.whole.size()) {
        return a.whole.size() < b.whole.size() ? -1 : 1;
    }
    const int whole = a.whole.compare(b.whole);
    return whole != 0 ? whole : a.fraction.compare(b.fraction);
}

// A number of exactly `digits` digits within bounds, followed by `separator` unless that is NUL; taken off the text.
bool takeField(std::string_view &text, size_t digits, int lowest, int highest, char separator) {
    const std::string_view field = takeDigits(text);
    if (field.size() != digits) {
        return false;
    }
    int value = 0;
    for (const char c : field) {
        value = value * 10 + (c - '0');
    }
    if (separator != '\0') {
        if (!text.starts_with(separator)) {
            return false;
        }
        text.remove_prefix(1);
    }
    return value >= lowest && value <= highest;
}

bool isAddressOf(int family, std::string_view text) {
    in6_addr address;
    return inet_pton(family, std::string(text).c_str(), &address) == 1;
}

bool isZone(std::string_view text) {
    if (text.empty() || text == "Z") {
        return true;
    }
    const bool sign = text.starts_with('+') || text.starts_with('-');
    text.remove_prefix(1);
    return sign && takeField(text, 2, 0, 14, ':') && takeField(text, 2, 0, 59, '\0') && text.empty();
}

} // namespace

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view trimmed(std::string_view text, std::string_view blanks) {
    const size_t first = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

bool isInteger(std::string_view text) {
    takeSign(text);
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool isDecimal(std::string_view text) {
    takeSign(text);
    const std::string_view whole = takeDigits(text);
    if (whole.empty() || text.empty()) {
        return !whole.empty();
    }
    return text.size() > 1 && text.front() == '.' && isInteger(text.substr(1)) && text[1] != '-';
}

bool isBoolean(std::string_view text) {
    return text == "true" || text == "false" || text == "1" || text == "0";
}

bool isDateTime(std::string_view text) {
    const bool fields = takeField(text, 4, 0, 9999, '-') && takeField(text, 2, 1, 12, '-') &&
                        takeField(text, 2, 1, 31, 'T') && takeField(text, 2, 0, 24, ':') &&
                        takeField(text, 2, 0, 59, ':') && takeField(text, 2, 0, 60, '\0');
    if (!fields) {
        return false;
    }
    if (text.starts_with('.')) {
        text.remove_prefix(1);
        if (takeDigits(text).empty()) {
            return false;
        }
    }
    return isZone(text);
}

bool isBase64(std::string_view text) {
    const size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    const std::string_view body = text.substr(0, text.size() - padding);
    return text.size() % 4 == 0 && std::all_of(body.begin(), body.end(), [](char c) {
               return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '+' || c == '/';
           });
}

bool isHexBinary(std::string_view text) {
    return text.size() % 2 == 0 && std::all_of(text.begin(), text.end(), [](char c) {
               return std::isxdigit(static_cast<unsigned char>(c)) != 0;
           });
}

bool isIpv4Address(std::string_view text) {
    return text.empty() || isAddressOf(AF_INET, text);
}

bool isIpv6Address(std::string_view text) {
    const size_t slash = std::min(text.find('/'), text.size());
    if (slash == text.size()) {
        return text.empty() || isAddressOf(AF_INET6, text);
    }
    const std::string_view length = text.substr(slash + 1);
    return isAddressOf(AF_INET6, text.substr(0, slash)) && isInteger(length) && compareDecimals(length, "0") >= 0 &&
           compareDecimals(length, "128") <= 0;
}

bool isIpAddress(std::string_view text) {
    return isIpv4Address(text) || isAddressOf(AF_INET6, text);
}

int compareDecimals(std::string_view a, std::string_view b) {
    const Decimal left(a);
    const Decimal right(b);
    if (left.negative != right.negative) {
        return left.negative ? -1 : 1;
    }
    const int order = compareMagnitudes(left, right);
    return left.negative ? -order : order;
}

} // namespace sandbox
