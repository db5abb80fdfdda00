// SPDX-License-Identifier: MIT
// Words between white space, as scanf() sees them.
#pragma once

namespace wifi {

// As isspace() in the C locale, whatever the host's locale is: the device's tools print in the C locale.
constexpr bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

// The first character of a text that is not white space; the terminator when there is none.
inline char *skipSpace(char *text) {
    while (isSpace(*text)) {
        ++text;
    }
    return text;
}

// The first white space of a text; the terminator when there is none.
inline char *skipWord(char *text) {
    while (*text && !isSpace(*text)) {
        ++text;
    }
    return text;
}

// Cuts the next word out of a text, in place: "" at its end. The cursor moves past the word.
inline const char *nextWord(char *&cursor) {
    char *word = skipSpace(cursor);
    cursor = skipWord(word);
    if (*cursor) {
        *cursor++ = '\0';
    }
    return word;
}

} // namespace wifi
