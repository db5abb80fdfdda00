// SPDX-License-Identifier: MIT
// The C library's allocation functions, counted. Its own names behind them are glibc's.
#include "allocations.h"

#include <cstddef>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);
}

namespace {

uint64_t allocations = 0;

} // namespace

uint64_t bench::heapAllocations() {
    return allocations;
}

extern "C" {

void *malloc(size_t size) {
    ++allocations;
    return __libc_malloc(size);
}

void *calloc(size_t count, size_t size) {
    ++allocations;
    return __libc_calloc(count, size);
}

void *realloc(void *block, size_t size) {
    ++allocations;
    return __libc_realloc(block, size);
}

} // extern "C"
