// SPDX-License-Identifier: MIT
// The text of a command line or of a path in it.
#pragma once

#include <cstddef>

namespace wifi {

// As snprintf(), for a text that is meant to be cut at `size` - 1 characters when it is longer.
[[gnu::format(printf, 3, 4)]] void formatCut(char *target, size_t size, const char *format, ...);

} // namespace wifi
