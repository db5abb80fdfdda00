// SPDX-License-Identifier: MIT
//
// Texts with escapes, as gateway files and messages for people write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sandbox {

// Whether the bytes are UTF-8 without control characters other than tab, line feed and carriage return.
bool isCleanText(std::string_view text);

// Undoes \\ \n \r \t \" and \xHH. Empty for an unknown escape or a NUL byte.
std::optional<std::string> unescape(std::string_view text);

// A value as it stands behind " = ": backslashes, control characters and bytes that are no UTF-8 are escaped, and so
// is a blank at the end, where nobody would see it.
std::string escapeValue(std::string_view value);

// The text in double quotes, escaped like a value.
std::string inQuotes(std::string_view text);

// inQuotes() cut to a length that leaves a message readable.
std::string quotedShort(std::string_view text);

} // namespace sandbox
