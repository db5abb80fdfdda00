// SPDX-License-Identifier: MIT
#include "store/location.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdlib>
#include <unistd.h>

namespace sandbox {
namespace {

constexpr int kLockPatienceMs = 10'000;

// The variable's text; "" when it is not set.
std::string_view environment(const char *variable) {
    const char *text = std::getenv(variable);
    return text ? text : "";
}

std::string chosenDirectory() {
    if (const std::string_view own = environment("CALTOFAL_SANDBOX_DIR"); !own.empty()) {
        return std::string(own);
    }
    // A relative path in this variable is to be ignored.
    if (const std::string_view state = environment("XDG_STATE_HOME"); state.starts_with('/')) {
        return std::string(state) + "/caltofal";
    }
    if (const std::string_view home = environment("HOME"); !home.empty()) {
        return std::string(home) + "/.local/state/caltofal";
    }
    return "/tmp/caltofal-" + std::to_string(getuid());
}

} // namespace

Location Location::current() {
    const std::string_view name = environment("CALTOFAL_GATEWAY");
    return named(name.empty() ? "home" : name);
}

Location Location::named(std::string_view name) {
    return {chosenDirectory(), std::string(name)};
}

bool isGatewayName(std::string_view name) {
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '.' || c == '_' || c == '-';
    });
}

bool isNewGatewayName(std::string_view name) {
    return isGatewayName(name) && name.front() != '.' && name.front() != '-';
}

int lockPatienceMs() {
    const std::string_view text = environment("CALTOFAL_SANDBOX_BUSY_MS");
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool valid = !text.empty() && error == std::errc() && end == text.data() + text.size() && value >= 0;
    return valid ? value : kLockPatienceMs;
}

} // namespace sandbox
