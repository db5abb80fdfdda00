// SPDX-License-Identifier: MIT
//
// Texts with escapes, as gateway files and messages for people write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sandbox {

// Bytes of the UTF-8 sequence at the front of the text, which is not empty; 0 when there is no such sequence. Long
// forms, surrogates and what is beyond U+10FFFF do not count as one.
size_t utf8Length(std::string_view text);

// Whether the bytes are UTF-8 without control characters other than tab, line feed and carriage return.
bool isCleanText(std::string_view text);

// Undoes \\ \n \r \t \" and \xHH. Empty for an unknown escape or a NUL byte.
std::optional<std::string> unescape(std::string_view text);

// A value as it stands after " = ": backslashes, control characters and bytes that are not UTF-8 are escaped, and so
// is a blank at the end, where nobody would see it.
std::string escapeValue(std::string_view value);

// The text in double quotes, escaped like a value.
std::string inQuotes(std::string_view text);

// inQuotes() cut to a length that leaves a message readable.
std::string quotedShort(std::string_view text);

// Pairs of hexadecimal digits as bytes, and back in lower case. What is not a digit counts as 0.
std::string bytesOfHex(std::string_view digits);
std::string hexOf(std::string_view bytes);

} // namespace sandbox
