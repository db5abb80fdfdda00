// SPDX-License-Identifier: MIT
// A text put together on the stack; what is put together here is too short and simple for printf().
#pragma once

#include "frame/text.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

namespace frame {

// At most `Size` - 1 characters; what does not fit is dropped.
template <size_t Size>
class BoundedText {
  public:
    BoundedText() { *end_ = '\0'; }
    // As snprintf().
    [[gnu::format(printf, 2, 3)]] explicit BoundedText(const char *format, ...) {
        va_list arguments;
        va_start(arguments, format);
        this->format(format, arguments);
        va_end(arguments);
    }
    BoundedText(const BoundedText &) = delete;
    BoundedText &operator=(const BoundedText &) = delete;

    void append(const char *text, size_t length) {
        const size_t room = Size - 1 - this->length();
        end_ = static_cast<char *>(mempcpy(end_, text, length < room ? length : room));
        *end_ = '\0';
    }
    void append(const char *text) { append(text, strlen(text)); }
    void append(int number) {
        char digits[kNumberSize];
        append(digits, static_cast<size_t>(putNumber(digits, number) - digits));
    }
    // As vsnprintf(), in the place of what is there.
    [[gnu::format(printf, 2, 0)]] void format(const char *format, va_list arguments) {
        const int needed = vsnprintf(text_, Size, format, arguments);
        const auto length = static_cast<size_t>(needed < 0 ? 0 : needed);
        end_ = text_ + (length < Size ? length : Size - 1);
    }

    operator const char *() const { return text_; } // NOLINT(google-explicit-constructor): stands for its text
    [[nodiscard]] const char *c_str() const { return text_; } // for variable arguments
    [[nodiscard]] size_t length() const { return static_cast<size_t>(end_ - text_); }

  private:
    char *end_ = text_;
    char text_[Size]; // left unset behind its end
};

} // namespace frame
