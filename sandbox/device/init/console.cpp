// SPDX-License-Identifier: MIT
#include "device/init/console.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace box {
namespace {

constexpr const char *kPath = "/dev/console";
constexpr const char *kFile = "/opt/lantiq/var/log/console";

[[noreturn]] void fail(const char *what) {
    throw std::system_error(errno, std::generic_category(), what);
}

} // namespace

Console::Console() {
    // The umask must not keep others of the gateway from writing.
    if (mkfifo(kPath, 0666) != 0 || chmod(kPath, 0666) != 0) {
        fail(kPath);
    }
    file_ = open(kFile, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (file_ < 0) {
        fail(kFile);
    }
    pipe_ = open(kPath, O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (pipe_ < 0) {
        fail(kPath);
    }
}

Console::~Console() {
    close(pipe_);
    close(file_);
}

std::string Console::drain() const {
    std::string moved;
    char bytes[65536];
    ssize_t length = 0;
    while ((length = read(pipe_, bytes, sizeof(bytes))) > 0) {
        [[maybe_unused]] const ssize_t written = write(file_, bytes, static_cast<size_t>(length));
        moved.append(bytes, static_cast<size_t>(length));
    }
    return moved;
}

} // namespace box
