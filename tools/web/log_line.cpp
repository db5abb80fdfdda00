// SPDX-License-Identifier: MIT
#include "log_line.h"

#include <ctime>
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
    const std::string line = now() + " " + address + " " + text + " -> " + outcome + "\n";
    static_cast<void>(!write(STDERR_FILENO, line.data(), line.size()));
}

} // namespace web
