// SPDX-License-Identifier: MIT
// Bounded copies and prefix tests.
#pragma once

#include <cstddef>
#include <cstring>
#include <strings.h>

namespace frame {

// Copies at most `size` - 1 characters and terminates; bytes after the terminator are left alone.
void copyText(char *target, size_t size, const char *text);

// As copyText() into a whole array.
template <size_t Size>
void copyText(char (&target)[Size], const char *text) {
    copyText(target, Size, text);
}

// As copyText(), reading no more than `available` bytes of the text.
void copyText(char *target, size_t size, const char *text, size_t available);

// Copies at most `size` characters and zero-fills what is left; a text that fills the target has no terminator.
void copyPadded(char *target, size_t size, const char *text);

// Copies exactly the text's own characters, without a terminator, as far as `room` reaches.
void copyExact(char *target, size_t room, const char *text);

// Copies a text of fewer than `limit` characters whole, without a terminator; leaves the target alone when it is
// longer.
void copyWhole(char *target, size_t limit, const char *text);

// Writes a word's characters over the start of a field, without a terminator.
template <size_t FieldSize, size_t WordSize>
void writeWord(char (&field)[FieldSize], const char (&word)[WordSize]) {
    static_assert(WordSize - 1 <= FieldSize);
    copyExact(field, FieldSize, word);
}

// A field's text with a terminator of its own: a field filled to its end has none.
template <size_t Size>
class Terminated {
  public:
    explicit Terminated(const char (&field)[Size]) {
        memcpy(text_, field, Size); // the whole field: its width is a constant, the length of its text is not
        text_[Size] = '\0';
    }
    operator const char *() const { return text_; } // NOLINT(google-explicit-constructor): stands for its text
    [[nodiscard]] const char *c_str() const { return text_; }

  private:
    char text_[Size + 1];
};

// Whether a text begins with a word; case counts.
inline bool beginsWith(const char *text, const char *word) {
    return strncmp(text, word, strlen(word)) == 0;
}

// Whether a text begins with a word, ignoring case.
inline bool beginsWithAnyCase(const char *text, const char *word) {
    return strncasecmp(text, word, strlen(word)) == 0;
}

// Whether a text contains a word.
inline bool contains(const char *text, const char *word) {
    return strstr(text, word) != nullptr;
}

// As atoi(), but faster for numbers of up to nine digits, as most are: with atoi() the DSL line costs 2.68 times its
// floor, where its limit is 1.70.
int number(const char *text);

// The longest number in decimal digits, without a terminator.
inline constexpr size_t kNumberSize = sizeof("-2147483648") - 1;

// Writes a number in decimal digits, without a terminator, and returns where they end. Smaller than to_chars(), which
// brings a table and a copy of itself into every file.
char *putNumber(char *out, int number);

// Whether a switch is on: the text begins with '1', or with "true" in any case.
bool isOn(const char *text);

} // namespace frame
