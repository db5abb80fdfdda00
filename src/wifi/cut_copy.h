// SPDX-License-Identifier: MIT
// Text fields of the Wi-Fi records.
#pragma once

#include <cstddef>
#include <cstring>

namespace wifi {

// Copies a text of a known length, cut so that the field's last byte stays unused, and terminates it.
template <size_t Size>
void copyField(char (&field)[Size], const char *text, size_t length) {
    constexpr size_t kLongest = Size - 2;
    const size_t copied = length < kLongest ? length : kLongest;
    memcpy(field, text, copied);
    field[copied] = '\0';
}

} // namespace wifi
