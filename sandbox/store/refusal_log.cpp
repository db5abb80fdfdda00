// SPDX-License-Identifier: MIT
#include "store/refusal_log.h"

#include "store/cal_codes.h"

#include <cstdio>
#include <ctime>
#include <exception>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sandbox {
namespace {

constexpr off_t kLogMax = 1 << 20;

void setAside(const std::string &file) {
    struct stat status {};
    if (stat(file.c_str(), &status) == 0 && status.st_size > kLogMax) {
        std::rename(file.c_str(), (file + ".old").c_str());
    }
}

std::string now() {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    char text[32];
    text[std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S%z", &local)] = '\0';
    return text;
}

} // namespace

void logRefusal(const Location &location, const char *operation, int code, const char *reason) noexcept {
    if (!isGatewayName(location.name)) {
        return; // nor does a file of that name belong to the sandbox
    }
    try {
        const std::string file = location.logFile();
        const CodeName *known = findCode(code);
        const std::string line = now() + " " + std::to_string(getpid()) + " " + operation + " " + std::to_string(code) +
                                 " " + std::string(known ? known->name : "other") + " " + reason + "\n";
        setAside(file);
        const int log = open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
        if (log >= 0) {
            // One call, so that lines of several processes do not mix; a lost line is no reason to fail.
            [[maybe_unused]] const ssize_t written = write(log, line.data(), line.size());
            close(log);
        }
    } catch (const std::exception &) { // NOLINT(bugprone-empty-catch): done without, as promised
    }
}

} // namespace sandbox
