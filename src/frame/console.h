// SPDX-License-Identifier: MIT
// A console line as the library puts it together.
#pragma once

#include "frame/bounded_text.h"
#include "frame/text.h"

#include <cstdarg>
#include <cstring>

namespace frame {

inline constexpr size_t kConsoleSize = 1024;
using ConsoleLine = BoundedText<kConsoleSize>;

// Writes a line; the results of PRINT_TO_CONSOLE().
int writeToConsole(const char *line, size_t length);
inline int writeToConsole(const ConsoleLine &line) {
    return writeToConsole(line, line.length());
}

// PRINT_TO_CONSOLE() of arguments at hand.
[[gnu::format(printf, 1, 0)]] int printToConsole(const char *format, va_list arguments);

// A field of a record as a part of a line: one that is full has no terminator.
template <size_t Size>
struct FieldText {
    const char (&text)[Size];
};
template <size_t Size>
FieldText(const char (&)[Size]) -> FieldText<Size>;

namespace detail {

template <size_t Size>
char *putPart(char *end, const char (&literal)[Size]) {
    memcpy(end, literal, Size);
    return end + Size - 1;
}
template <size_t Size>
char *putPart(char *end, FieldText<Size> field) {
    return static_cast<char *>(mempcpy(end, field.text, strnlen(field.text, Size)));
}
inline char *putPart(char *end, int number) {
    return putNumber(end, number);
}

// What a part takes at most.
template <size_t Size>
consteval size_t partSize(const char (* /*literal*/)[Size]) {
    return Size;
}
template <size_t Size>
consteval size_t partSize(const FieldText<Size> * /*field*/) {
    return Size;
}
consteval size_t partSize(const void * /*number*/) {
    return sizeof("-2147483648");
}

} // namespace detail

// Writes a line of literals, FieldTexts and numbers: cheaper than PRINT_TO_CONSOLE(), for what is traced when all goes
// well. A line that might have to be cut does not compile.
template <class... Parts>
int writePartsToConsole(const Parts &...parts) {
    constexpr size_t kSize = (detail::partSize(static_cast<const Parts *>(nullptr)) + ...);
    static_assert(kSize < kConsoleSize);
    char line[kSize];
    char *end = line;
    ((end = detail::putPart(end, parts)), ...);
    return writeToConsole(line, static_cast<size_t>(end - line));
}

} // namespace frame
