// SPDX-License-Identifier: MIT
// Whether the two sides of a page do the same.
#pragma once

#include "page.h"

#include <cstdint>

namespace bench {

// What one run of a side costs.
struct Cost {
    uint64_t calls; // of the platform
    uint64_t nodes;
    uint64_t allocations;
};

// Measures a run after one that fills the pools.
Cost costOf(const Page &page, Side side);

// Compares code, record and platform calls of both sides, which must be equal, and the console lines of a floor that
// writes any; looks for heap allocations of the library's own. What is wrong, or "".
std::string findFault(const Page &page);

} // namespace bench
