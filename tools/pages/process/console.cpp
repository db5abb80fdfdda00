// SPDX-License-Identifier: MIT
//
// The library opens "/dev/console" anew for each line. Its calls of open() bind to the one below, which stands before
// libc's in the search order and passes everything else on.
#include "pages/process/console.h"

#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>

namespace pages {
namespace {

int console = -1;
void (*opening)() = nullptr;

int openReal(const char *path, int flags, mode_t mode) {
    using Open = int (*)(const char *, int, ...);
    static const auto kReal = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "open"));
    return kReal(path, flags, mode);
}

} // namespace

void redirectConsole(int descriptor, void (*before)()) {
    console = descriptor;
    opening = before;
}

} // namespace pages

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): libc's names are reserved ones
extern "C" __attribute__((visibility("default"))) int open(const char *path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE) {
        va_list arguments;
        va_start(arguments, flags);
        mode = va_arg(arguments, mode_t); // NOLINT(clang-analyzer-valist.Uninitialized): va_start() is above
        va_end(arguments);
    }
    if (pages::console >= 0 && strcmp(path, "/dev/console") == 0) {
        if (pages::opening) {
            pages::opening();
        }
        return fcntl(pages::console, F_DUPFD_CLOEXEC, 0);
    }
    return pages::openReal(path, flags, mode);
}
