// SPDX-License-Identifier: MIT
// Texts of records and answers: they may hold any bytes.
#pragma once

#include "pages/value.h"

#include <cstring>
#include <string>
#include <string_view>

namespace pages {

// How many bytes the first character of a text takes in UTF-8; 0 where they are not UTF-8.
size_t utf8Length(std::string_view text);

bool isUtf8(std::string_view text);

// Two lower-case digits a byte.
std::string hexOf(std::string_view text);

// A text of the outside as a message quotes it: its first 40 bytes in quotation marks, with "..." for the rest, a
// NUL as in JSON.
std::string inQuotes(std::string_view text);

// Texts with ", " between them.
template <class Texts>
std::string joined(const Texts &texts) {
    std::string result;
    for (const auto &text : texts) {
        result += result.empty() ? "" : ", ";
        result += text;
    }
    return result;
}

// A path without its last dot, as answers name objects.
inline std::string_view withoutDot(std::string_view path) {
    return path.substr(0, path.find_last_not_of('.') + 1);
}

// A list of paths in the form of answered names, none with a last dot; any other text as it is.
std::string plainPaths(const std::string &text);

// A parameter's value with the type that it looks like: flag, number or text. What people choose freely (names,
// descriptions, SSIDs, keys) is always text.
Value typed(std::string_view parameter, std::string_view value);

// A text as a flag: true, false, 1 or 0 in any case; null where it is none of these, whatever else it may mean.
Value flagOf(std::string_view text);

// Another spelling of a flag or a number (TRUE, 1, +07) as the layer writes it, where the present value is one.
std::string spelledLike(const Value &now, const std::string &value);

// A fixed-size field, with or without a terminator.
template <size_t size>
std::string text(const char (&field)[size]) {
    return {field, strnlen(field, size)};
}

} // namespace pages
