// SPDX-License-Identifier: MIT
#include "frame/text.h"

#include <cstdlib>
#include <cstring>

namespace frame {

void copyText(char *target, size_t size, const char *text) {
    copyText(target, size, text, size - 1);
}

void copyText(char *target, size_t size, const char *text, size_t available) {
    const size_t length = strnlen(text, available < size - 1 ? available : size - 1);
    memcpy(target, text, length);
    target[length] = '\0';
}

void copyPadded(char *target, size_t size, const char *text) {
    strncpy(target, text, size);
}

void copyWhole(char *target, size_t limit, const char *text) {
    const size_t length = strlen(text);
    if (length < limit) {
        memcpy(target, text, length); // NOLINT(bugprone-not-null-terminated-result): a field without a terminator
    }
}

void copyExact(char *target, size_t room, const char *text) {
    memcpy(target, text, strnlen(text, room));
}

char *putNumber(char *out, int number) {
    char digits[kNumberSize];
    size_t count = 0;
    auto rest = static_cast<unsigned>(number);
    if (number < 0) {
        *out++ = '-';
        rest = 0U - rest;
    }
    do {
        digits[count++] = static_cast<char>('0' + rest % 10);
        rest /= 10;
    } while (rest > 0);
    while (count > 0) {
        *out++ = digits[--count];
    }
    return out;
}

int number(const char *text) {
    constexpr ptrdiff_t kDigits = 9;
    const bool negative = *text == '-';
    const char *first = text + (negative ? 1 : 0);
    const char *digit = first;
    unsigned value = 0; // not used when there are too many digits
    for (unsigned next = 0; (next = static_cast<unsigned>(*digit - '0')) <= 9; ++digit) {
        value = value * 10 + next;
    }
    if (digit == first || digit - first > kDigits) {
        return atoi(text);
    }
    return static_cast<int>(negative ? -value : value);
}

bool isOn(const char *text) {
    return *text == '1' || beginsWithAnyCase(text, "true");
}

} // namespace frame
