// SPDX-License-Identifier: MIT
// Copies into the text fields of the Wi-Fi records. Their last byte stays unused: char[128] holds 126 characters.
#pragma once

#include "frame/text.h"

#include <cstddef>
#include <cstring>

namespace wifi {

// Copies a text, cut to the field, and terminates it.
template <size_t Size>
void copyCut(char (&field)[Size], const char *text) {
    frame::copyText(field, Size - 1, text);
}

// The same for a text of a known length: measured again, the survey and the snapshots would miss their limits.
template <size_t Size>
void copyCut(char (&field)[Size], const char *text, size_t length) {
    constexpr size_t kLongest = Size - 2;
    const size_t copied = length < kLongest ? length : kLongest;
    memcpy(field, text, copied);
    field[copied] = '\0';
}

} // namespace wifi
