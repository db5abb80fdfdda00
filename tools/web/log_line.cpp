// SPDX-License-Identifier: MIT
#include "log_line.h"

#include <ctime>
#include <mutex>
#include <poll.h>
#include <unistd.h>

namespace web {
namespace {

constexpr size_t kTextMax = 1000;

std::string now() {
    const time_t seconds = time(nullptr);
    struct tm parts {};
    gmtime_r(&seconds, &parts);
    char text[32];
    strftime(text, sizeof(text), "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text;
}

// Who reads the log may stop reading it: a full pipe would then hold each thread that writes a line. A pipe that is
// ready has room for PIPE_BUF bytes, more than a line has.
bool isReady() {
    pollfd log = {STDERR_FILENO, POLLOUT, 0};
    return poll(&log, 1, 0) > 0;
}

void writeAll(const std::string &text) {
    static_cast<void>(!write(STDERR_FILENO, text.data(), text.size()));
}

} // namespace

std::string plain(std::string_view text) {
    std::string result;
    for (const char c : text.substr(0, kTextMax)) {
        result += c > ' ' && c < 0x7f ? c : '?';
    }
    return result + (text.size() > kTextMax ? "..." : "");
}

void logLine(const std::string &address, const std::string &text, Status status) {
    logLine(address, text, std::to_string(static_cast<unsigned>(status)));
}

void logLine(const std::string &address, const std::string &text, const std::string &outcome) {
    static std::mutex mutex;
    static size_t lost = 0;
    const std::lock_guard lock(mutex);
    if (!isReady()) {
        ++lost;
        return;
    }
    if (lost > 0) {
        writeAll(now() + " " + std::to_string(lost) + " lines are lost: nobody read them\n");
        lost = 0;
    }
    writeAll(now() + " " + address + " " + text + " -> " + outcome + "\n");
}

} // namespace web
