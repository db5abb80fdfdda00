// SPDX-License-Identifier: MIT
// Hexadecimal digits.
#pragma once

namespace wifi {

// What hexValue() answers for a character that is not a hexadecimal digit.
inline constexpr unsigned char kNoHexDigit = 255;

// The value of a hexadecimal digit of either case.
constexpr unsigned char hexValue(char digit) {
    if (digit >= '0' && digit <= '9') {
        return static_cast<unsigned char>(digit - '0');
    }
    if (digit >= 'a' && digit <= 'f') {
        return static_cast<unsigned char>(digit - 'a' + 10);
    }
    if (digit >= 'A' && digit <= 'F') {
        return static_cast<unsigned char>(digit - 'A' + 10);
    }
    return kNoHexDigit;
}

} // namespace wifi
