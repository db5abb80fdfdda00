// SPDX-License-Identifier: MIT
#include "pages/wifi/interface.h"

#include "caltofal.h"
#include "pages/failure.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstring>

namespace cli {
namespace {

constexpr size_t kInterfaceMax = 15; // IFNAMSIZ without the terminator
constexpr size_t kSsidMax = 32;
constexpr int kInstanceMax = 9999;

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool mayFollow(char c) {
    return isLetter(c) || (c >= '0' && c <= '9') || (c != '\0' && strchr("_.-", c) != nullptr);
}

} // namespace

const std::string &checkedInterface(const std::string &name) {
    const bool valid = !name.empty() && name.size() <= kInterfaceMax && isLetter(name.front()) &&
                       std::all_of(name.begin(), name.end(), mayFollow);
    if (!valid) {
        throw Usage("\"" + name.substr(0, 40) +
                    "\" is no interface name: a letter, then at most 14 letters, digits, dots, underscores or dashes");
    }
    return name;
}

const std::string &checkedSsid(const std::string &ssid) {
    if (ssid.size() > kSsidMax) {
        throw Usage("an SSID has 32 bytes at most, this one has " + std::to_string(ssid.size()));
    }
    return ssid;
}

std::string checkedMac(const std::string &text) {
    const char mark = text.size() > 2 && strchr(":-", text[2]) != nullptr ? text[2] : '\0';
    const size_t step = mark == '\0' ? 2 : 3;
    std::string result;
    bool valid = text.size() == 6 * step - (step - 2);
    for (size_t i = 0; valid && i < text.size(); ++i) {
        const bool between = i % step == 2;
        valid = between ? text[i] == mark : isxdigit(static_cast<unsigned char>(text[i])) != 0;
        result += between ? "" : (i > 0 && i % step == 0 ? ":" : "") + text.substr(i, 1);
    }
    if (!valid || isValidMacAddress(result.c_str()) == 0) {
        throw Usage("\"" + text.substr(0, 40) +
                    "\" is no MAC address: six pairs of digits, joined by colons, dashes or nothing");
    }
    return result;
}

int checkedNumber(const std::string &text, const char *what, int least, int most) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < least || number > most) {
        throw Usage(std::string(what) + " \"" + text.substr(0, 40) + "\" is no number from " + std::to_string(least) +
                    " to " + std::to_string(most));
    }
    return number;
}

int checkedInstance(const std::string &text, const char *what) {
    return checkedNumber(text, what, 1, kInstanceMax);
}

Interface findInterface(const std::string &name) {
    for (const Object &ssid : get({{"Device.WiFi.SSID", {{"Name", {}}, {"LowerLayers", {}}}}}, Reading::Whole)) {
        if (valueOf(ssid, "Name") == name) {
            return {name, ssid.name, instanceOf(valueOf(ssid, "LowerLayers"))};
        }
    }
    throw Failure(Exit::Absent, name + ": no SSID of the gateway is on that interface", "Device.WiFi.SSID");
}

std::string valueOf(const Object &object, const std::string &parameter) {
    for (const Parameter &candidate : object.parameters) {
        if (candidate.name == parameter) {
            return candidate.value;
        }
    }
    return {};
}

int instanceOf(const std::string &path) {
    const size_t end = path.find_last_not_of('.') + 1;
    const size_t start = path.find_last_of('.', end == 0 ? 0 : end - 1) + 1;
    int number = 0;
    std::from_chars(path.data() + start, path.data() + end, number);
    return number;
}

} // namespace cli
