// SPDX-License-Identifier: MIT
// A console line as the library puts it together.
#pragma once

#include "bounded_text.h"

namespace frame {

using ConsoleLine = BoundedText<1024>;

// Writes a line; the results of PRINT_TO_CONSOLE().
int writeToConsole(const ConsoleLine &line);

} // namespace frame
