// SPDX-License-Identifier: MIT
#include "device/init/system_log.h"

#include <cerrno>
#include <charconv>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <system_error>
#include <unistd.h>

namespace box {
namespace {

constexpr const char *kPath = "/dev/log";
constexpr const char *kFile = "/opt/lantiq/var/log/messages";

constexpr const char *kPriorities[] = {"emerg", "alert", "crit", "err", "warning", "notice", "info", "debug"};

[[noreturn]] void fail(const char *what) {
    throw std::system_error(errno, std::generic_category(), what);
}

// A message is "<PRIORITY>Mon DD HH:MM:SS TEXT": the line has the priority's word after the time.
std::string lineOf(std::string_view message) {
    constexpr size_t kTimeLength = 15;
    const size_t end = message.find('>');
    unsigned priority = 0;
    if (message.starts_with('<') && end != std::string_view::npos) {
        std::from_chars(message.data() + 1, message.data() + end, priority);
        message.remove_prefix(end + 1);
    }
    while (!message.empty() && (message.back() == '\0' || message.back() == '\n')) {
        message.remove_suffix(1);
    }
    std::string line(message.substr(0, kTimeLength));
    line += ' ';
    line += kPriorities[priority % std::size(kPriorities)];
    line += message.size() > kTimeLength ? message.substr(kTimeLength) : "";
    return line + '\n';
}

} // namespace

SystemLog::SystemLog()
    : socket_(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)),
      file_(open(kFile, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    strcpy(address.sun_path, kPath);
    if (file_ < 0) {
        fail(kFile);
    }
    if (socket_ < 0 || bind(socket_, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0 ||
        chmod(kPath, 0666) != 0) {
        fail(kPath);
    }
}

SystemLog::~SystemLog() {
    close(socket_);
    close(file_);
}

void SystemLog::drain() const {
    char message[8192];
    ssize_t length = 0;
    while ((length = recv(socket_, message, sizeof(message), 0)) > 0) {
        const std::string line = lineOf({message, static_cast<size_t>(length)});
        [[maybe_unused]] const ssize_t written = write(file_, line.data(), line.size());
    }
}

} // namespace box
