// SPDX-License-Identifier: MIT
// The parameters of a request, from variable arguments or from an array.
#pragma once

#include <cstdarg>

namespace frame {

// Texts taken one after another. It refers to the caller's va_list or array.
class Arguments {
  public:
    explicit Arguments(va_list *list) : list_(list) {}
    explicit Arguments(const char **array) : array_(array) {}

    const char *next() { return list_ ? va_arg(*list_, const char *) : *array_++; }

  private:
    va_list *list_ = nullptr;
    const char **array_ = nullptr;
};

} // namespace frame
