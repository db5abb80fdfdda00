// SPDX-License-Identifier: MIT
#include "store/log_line.h"

#include "store/cal_codes.h"

#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace sandbox {

std::string localTime(bool milliseconds) {
    std::timespec now{};
    std::timespec_get(&now, TIME_UTC);
    std::tm local{};
    localtime_r(&now.tv_sec, &local);
    char seconds[32];
    char zone[16];
    char fraction[8] = "";
    seconds[strftime(seconds, sizeof(seconds), "%Y-%m-%dT%H:%M:%S", &local)] = '\0';
    zone[strftime(zone, sizeof(zone), "%z", &local)] = '\0';
    if (milliseconds) {
        snprintf(fraction, sizeof(fraction), ".%03d", static_cast<int>(now.tv_nsec / 1'000'000));
    }
    return std::string(seconds) + fraction + zone;
}

std::string codeText(int code) {
    const CodeName *known = findCode(code);
    return std::to_string(code) + " " + std::string(known ? known->name : "other");
}

bool appendLine(const std::string &file, const std::string &line) {
    const int handle = open(file.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (handle < 0) {
        return false;
    }
    const std::string text = line + "\n";
    const bool written = write(handle, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    close(handle);
    return written;
}

} // namespace sandbox
