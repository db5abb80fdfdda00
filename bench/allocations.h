// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace bench {

// Calls of malloc(), calloc() and realloc() in this process since its start.
uint64_t heapAllocations();

} // namespace bench
