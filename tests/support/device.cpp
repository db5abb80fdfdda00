// SPDX-License-Identifier: MIT
// Stands between the library and libc: the test program's own open(), fopen(), system(), popen() and syslog() come
// first in symbol resolution.
#include "device.h"

#include "platform.h"
#include "replaced.h"

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace test {
namespace {

namespace fs = std::filesystem;

Shell theShell;
int openToFail = 0;
std::vector<std::string> syslogLines;

int consoleFile() {
    static const int file = memfd_create("console", MFD_CLOEXEC);
    return file;
}

std::atomic<size_t> consoleOpenings = 0;

const fs::path &root() {
    static const struct Root {
        Root() {
            char pattern[] = "/tmp/caltofal-test-XXXXXX";
            path = mkdtemp(pattern);
        }
        ~Root() { fs::remove_all(path); }
        fs::path path;
    } theRoot;
    return theRoot.path;
}

bool isDevicePath(const std::string &path) {
    return path.starts_with("/opt/") || path.starts_with("/proc/net/mtlk/") || path.starts_with("/tmp/wlan_wave/");
}

template <class Function>
Function next(const char *name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

} // namespace

std::string realPath(const std::string &path) {
    return isDevicePath(path) ? root().string() + path : path;
}

void putFile(const std::string &path, const std::string &content) {
    const fs::path real = realPath(path);
    std::ofstream stream(real, std::ios::binary);
    if (!stream) {
        fs::create_directories(real.parent_path());
        stream.open(real, std::ios::binary);
    }
    stream << content;
}

void removeFile(const std::string &path) {
    fs::remove(realPath(path));
}

Shell &shell() {
    return theShell;
}

void resetShell() {
    theShell = {};
}

void failOpen(int n) {
    openToFail = n;
}

std::string takeConsole() {
    const int file = consoleFile();
    std::string text(static_cast<size_t>(lseek(file, 0, SEEK_END)), '\0');
    EXPECT_EQ(static_cast<ssize_t>(text.size()), pread(file, text.data(), text.size(), 0));
    EXPECT_EQ(0, ftruncate(file, 0));
    return text;
}

size_t takeConsoleLines() {
    return consoleOpenings.exchange(0);
}

std::vector<std::string> takeSyslog() {
    return std::exchange(syslogLines, {});
}

std::string vola(const std::string &unit, int line, const std::string &function) {
    return "[ZINTU VOLA FAL] (" + unit + ":" + std::to_string(line) + ", " + function + ") ";
}

std::string withoutLines(const std::string &console) {
    return replaced(console, "(\\(Zintu[A-Za-z]*:|\n\n\t\\[[A-Za-z_0-9]* : )[0-9]+", "0");
}

} // namespace test

using namespace test;

extern "C" {

int open(const char *path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const int mode = (flags & O_CREAT) != 0 ? va_arg(arguments, int) : 0;
    va_end(arguments);
    if (std::string(path) == "/dev/console") {
        EXPECT_EQ(O_RDWR, flags);
        ++consoleOpenings;
        const int copy = dup(consoleFile());
        lseek(copy, 0, SEEK_END);
        return copy;
    }
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, realPath(path).c_str(), flags, mode));
}

FILE *fopen(const char *path, const char *mode) {
    static const auto real = next<FILE *(*)(const char *, const char *)>("fopen");
    if (openToFail > 0 && isDevicePath(path) && --openToFail == 0) {
        return nullptr;
    }
    return real(realPath(path).c_str(), mode);
}

int access(const char *path, int mode) noexcept {
    return static_cast<int>(syscall(SYS_faccessat, AT_FDCWD, realPath(path).c_str(), mode));
}

int system(const char *command) {
    static const auto real = next<int (*)(const char *)>("system");
    shell().commands.emplace_back(command);
    if (shell().real) {
        return real(command);
    }
    return shell().onSystem ? shell().onSystem(command) : 0;
}

FILE *popen(const char *command, const char *mode) {
    static const auto real = next<FILE *(*)(const char *, const char *)>("popen");
    shell().commands.emplace_back(command);
    if (shell().failPopen) {
        return nullptr;
    }
    if (shell().real) {
        return real(command, mode);
    }
    const std::string output = shell().onPopen ? shell().onPopen(command) : "";
    FILE *stream = fdopen(memfd_create("output", MFD_CLOEXEC), "w+");
    fwrite(output.data(), 1, output.size(), stream);
    rewind(stream);
    return stream;
}

int pclose(FILE *stream) {
    static const auto real = next<int (*)(FILE *)>("pclose");
    return shell().real ? real(stream) : fclose(stream);
}

[[gnu::format(printf, 2, 3)]] void syslog(int priority, const char *format, ...) {
    char line[512];
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(line, sizeof(line), format, arguments);
    va_end(arguments);
    syslogLines.push_back(std::to_string(priority) + " " + line);
}

} // extern "C"
