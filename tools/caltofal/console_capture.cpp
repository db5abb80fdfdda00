// SPDX-License-Identifier: MIT
//
// The library opens "/dev/console" anew for each line. Its calls of open() bind to the one below, which stands before
// libc's in the search order and passes everything else on.
#include "caltofal/console_capture.h"

#include "caltofal/trace.h"

#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace cli {
namespace {

int memory = -1; // all console descriptors share its offset

int openReal(const char *path, int flags, mode_t mode) {
    using Open = int (*)(const char *, int, ...);
    static const auto real = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "open"));
    return real(path, flags, mode);
}

} // namespace

void captureConsole() {
    if (memory < 0) {
        memory = memfd_create("console", MFD_CLOEXEC);
    }
}

std::string takeConsole() {
    const off_t size = memory < 0 ? 0 : lseek(memory, 0, SEEK_CUR);
    if (size <= 0) {
        return {};
    }
    std::string text(static_cast<size_t>(size), '\0');
    const ssize_t got = pread(memory, text.data(), text.size(), 0);
    text.resize(got < 0 ? 0 : static_cast<size_t>(got));
    lseek(memory, 0, SEEK_SET);
    return text;
}

} // namespace cli

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): libc's names are reserved ones
extern "C" __attribute__((visibility("default"))) int open(const char *path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE) {
        va_list arguments;
        va_start(arguments, flags);
        mode = va_arg(arguments, mode_t); // NOLINT(clang-analyzer-valist.Uninitialized): va_start() is above
        va_end(arguments);
    }
    if (cli::memory >= 0 && strcmp(path, "/dev/console") == 0) {
        cli::traceCollect();
        return fcntl(cli::memory, F_DUPFD_CLOEXEC, 0);
    }
    return cli::openReal(path, flags, mode);
}
