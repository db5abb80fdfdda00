// SPDX-License-Identifier: MIT
#include "store/refusal_log.h"

#include "store/log_line.h"
#include "store/store.h"

#include <cstdio>
#include <exception>
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

} // namespace

void logRefusal(const Location &location, const char *operation, int code, const char *reason) noexcept {
    try {
        if (!storeExists(location)) {
            return; // the log of a gateway that is not there would be nobody's
        }
        const std::string file = location.logFile();
        setAside(file);
        // A lost line is no reason to fail.
        appendLine(file, localTime() + " " + std::to_string(getpid()) + " " + operation + " " + codeText(code) + " " +
                             reason);
    } catch (const std::exception &) { // NOLINT(bugprone-empty-catch): done without, as promised
    }
}

} // namespace sandbox
