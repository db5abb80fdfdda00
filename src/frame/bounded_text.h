// SPDX-License-Identifier: MIT
// A formatted text on the stack: a path, a command line, a line of the console.
#pragma once

#include <cstdarg>
#include <cstddef>

namespace frame {

// As vsnprintf(), but returns the length of what it wrote. `size` is at least 1.
[[gnu::format(printf, 3, 0)]] size_t formatText(char *text, size_t size, const char *format, va_list arguments);

// At most `Size` - 1 characters; what does not fit is cut off, as the device's tools and scripts expect it.
template <size_t Size>
class BoundedText {
  public:
    [[gnu::format(printf, 2, 3)]] explicit BoundedText(const char *format, ...) {
        va_list arguments;
        va_start(arguments, format);
        length_ = formatText(text_, Size, format, arguments);
        va_end(arguments);
    }
    BoundedText(const BoundedText &) = delete;
    BoundedText &operator=(const BoundedText &) = delete;

    operator const char *() const { return text_; } // NOLINT(google-explicit-constructor): stands for its text
    [[nodiscard]] const char *c_str() const { return text_; } // for variable arguments
    [[nodiscard]] size_t length() const { return length_; }

  private:
    size_t length_;
    char text_[Size];
};

} // namespace frame
