// SPDX-License-Identifier: MIT
#include "text.h"

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

bool contains(const char *text, std::string_view word) {
    return strncmp(text, word.data(), word.size()) == 0 || (*text && strstr(text + 1, word.data()));
}

int number(const char *text) {
    constexpr ptrdiff_t kDigits = 9;
    const bool negative = *text == '-';
    const char *first = text + (negative ? 1 : 0);
    const char *digit = first;
    int value = 0;
    for (; *digit >= '0' && *digit <= '9'; ++digit) {
        if (digit - first == kDigits) {
            return atoi(text);
        }
        value = value * 10 + (*digit - '0');
    }
    if (digit == first) {
        return atoi(text);
    }
    return negative ? -value : value;
}

bool isOn(const char *text) {
    return *text == '1' || beginsWithAnyCase(text, "true");
}

} // namespace frame
