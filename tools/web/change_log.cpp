// SPDX-License-Identifier: MIT
#include "change_log.h"

#include "pages/text.h"

#include <ctime>
#include <unistd.h>
#include <vector>

namespace web {
namespace {

constexpr size_t kTextMax = 1000;

// What a client chose cannot end the line or steer a terminal.
std::string plain(std::string_view text) {
    std::string result;
    for (const char c : text.substr(0, kTextMax)) {
        result += c > ' ' && c < 0x7f ? c : '?';
    }
    return result + (text.size() > kTextMax ? "..." : "");
}

std::string now() {
    const time_t seconds = time(nullptr);
    struct tm parts {};
    gmtime_r(&seconds, &parts);
    char text[32];
    strftime(text, sizeof(text), "%Y-%m-%dT%H:%M:%SZ", &parts);
    return text;
}

} // namespace

std::string changeText(const Call &call, const Request &request) {
    std::vector<std::string> names;
    for (const auto &[name, value] : call.body.members()) {
        if (!value.isObject()) {
            names.push_back(name);
        }
        for (const auto &[parameter, unused] : value.members()) {
            names.push_back(std::string(pages::withoutDot(name)) + "." + parameter);
        }
    }
    std::string text = request.method + " " + plain(request.target);
    for (const std::string &name : names) {
        text += (&name == names.data() ? " " : ",") + plain(name);
    }
    return text;
}

void logChange(const std::string &text, const Request &request, Status status) {
    const std::string line =
        now() + " " + request.address + " " + text + " -> " + std::to_string(static_cast<unsigned>(status)) + "\n";
    static_cast<void>(!write(STDERR_FILENO, line.data(), line.size()));
}

} // namespace web
