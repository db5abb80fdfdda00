// SPDX-License-Identifier: MIT
// The library's console trace, kept away from the console.
#pragma once

namespace pages {

// From now on what any library of this process opens as "/dev/console" is a copy of `descriptor`, which stays open.
// `before`, where there is one, is called before each such opening. To be called before the first page, once.
void redirectConsole(int descriptor, void (*before)() = nullptr);

} // namespace pages
