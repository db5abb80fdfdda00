// SPDX-License-Identifier: MIT
// Text that may hold anything, made fit for a terminal and for JSON.
#pragma once

#include <cstring>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace cli {

using Json = nlohmann::ordered_json;

// Takes the user's locale, or "C.UTF-8" where that one knows ASCII alone. Before the first text is shown.
void useUtf8Locale();

bool isUtf8(std::string_view text);

// Two lower-case digits a byte.
std::string hexOf(std::string_view text);

// Control characters, marks of direction, and all but ASCII where the text is no UTF-8 or the system has no locale
// for it, as "\x1b".
std::string printable(std::string_view text);

// Sets object[key]. A text that is no UTF-8 gets a sibling "KEY_hex" with its bytes.
void put(Json &object, const std::string &key, const Json &value);

// A parameter's value with the type that it looks like: flag, number or text. What people choose freely (names,
// descriptions, SSIDs, keys) is always text.
Json typed(std::string_view parameter, std::string_view value);

// One line; bytes that are no UTF-8 are replaced.
std::string dumped(const Json &json, int indent = -1);

// A fixed-size field, with or without a terminator.
template <size_t size>
std::string text(const char (&field)[size]) {
    return {field, strnlen(field, size)};
}

} // namespace cli
