// SPDX-License-Identifier: MIT
// A text formatted on the stack: a command line or a path.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <cstdio>

namespace wifi {

// At most `Size` - 1 characters; what is longer is cut, as the device's tools and scripts expect of these texts.
template <size_t Size>
class Formatted {
  public:
    [[gnu::format(printf, 2, 3)]] explicit Formatted(const char *format, ...) {
        va_list arguments;
        va_start(arguments, format);
        vsnprintf(text_, Size, format, arguments);
        va_end(arguments);
    }
    operator const char *() const { return text_; } // NOLINT(google-explicit-constructor): stands for its text
    [[nodiscard]] const char *c_str() const { return text_; } // for variable arguments

  private:
    char text_[Size];
};

} // namespace wifi
