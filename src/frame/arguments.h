// SPDX-License-Identifier: MIT
// A request, and its parameters from variable arguments or from an array.
#pragma once

#include "caltofal.h"

#include <cstdarg>

namespace frame {

// A request as its caller words it; the parameters come as Arguments.
struct Request {
    MsgHeader *message;
    const char *object;
    const char *mainOper;
    const char *subOper;
    int count;
};

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
