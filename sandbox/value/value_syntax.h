// SPDX-License-Identifier: MIT
//
// How single values are written: numbers, times, encoded octets, addresses.
#pragma once

#include <string_view>

namespace sandbox {

bool isDigit(char c);
bool isInteger(std::string_view text);  // an optional minus and digits
bool isDecimal(std::string_view text);  // the same with an optional fraction
bool isBoolean(std::string_view text);  // true, false, 1 or 0
bool isDateTime(std::string_view text); // 2024-02-29T12:00:00, with an optional fraction and Z or +hh:mm
bool isBase64(std::string_view text);
bool isHexBinary(std::string_view text);

// Addresses: the empty text is none, and valid.
bool isIpv4Address(std::string_view text);
bool isIpv6Address(std::string_view text); // with or without a prefix length, as devices write it
bool isIpAddress(std::string_view text);   // of either, without one

// The text without the blanks around it.
std::string_view trimmed(std::string_view text, std::string_view blanks = " \t\r\n");

// Negative, 0 or positive as `a` is less than, equal to or greater than `b`, both decimals of any length.
int compareDecimals(std::string_view a, std::string_view b);

} // namespace sandbox
