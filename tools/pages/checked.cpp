// SPDX-License-Identifier: MIT
#include "pages/checked.h"

#include "caltofal.h"
#include "pages/failure.h"
#include "pages/text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstring>

namespace pages {
namespace {

constexpr size_t kInterfaceMax = 15; // IFNAMSIZ without the terminator
constexpr size_t kSsidMax = 32;
constexpr int kInstanceMax = 9999;
constexpr size_t kNameMax = sizeof(ObjectNode::name) - 1;
constexpr size_t kValueMax = PARAM_VALUE_SIZE - 1;

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool mayFollow(char c) {
    return isLetter(c) || (c >= '0' && c <= '9') || (c != '\0' && strchr("_.-", c) != nullptr);
}

void checkLength(const std::string &text, size_t most, const char *what) {
    if (text.size() > most) {
        throw Usage(what + (" " + inQuotes(text)) + " has " + std::to_string(text.size()) + " bytes: the most is " +
                    std::to_string(most));
    }
}

// A MAC address in any of the forms that people type, with colons; "" for what is none.
std::string macWithColons(const std::string &text) {
    const char mark = text.size() > 2 && strchr(":-", text[2]) != nullptr ? text[2] : '\0';
    const size_t step = mark == '\0' ? 2 : 3;
    std::string result;
    bool valid = text.size() == 6 * step - (step - 2);
    for (size_t i = 0; valid && i < text.size(); ++i) {
        const bool between = i % step == 2;
        valid = between ? text[i] == mark : isxdigit(static_cast<unsigned char>(text[i])) != 0;
        result += between ? "" : (i > 0 && i % step == 0 ? ":" : "") + text.substr(i, 1);
    }
    return valid && isValidMacAddress(result.c_str()) != 0 ? result : "";
}

} // namespace

InterfaceName::InterfaceName(std::string name) : name_(std::move(name)) {
    const bool valid = !name_.empty() && name_.size() <= kInterfaceMax && isLetter(name_.front()) &&
                       std::all_of(name_.begin(), name_.end(), mayFollow);
    if (!valid) {
        throw Usage(
            inQuotes(name_) +
            " is not an interface name: a letter, then at most 14 letters, digits, dots, underscores or dashes");
    }
}

const std::string &checkedSsid(const std::string &ssid) {
    if (ssid.size() > kSsidMax) {
        throw Usage("an SSID has 32 bytes at most, this one has " + std::to_string(ssid.size()));
    }
    return ssid;
}

int checkedNumber(const std::string &text, const char *what, int least, int most) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < least || number > most) {
        throw Usage(std::string(what) + " " + inQuotes(text) + " is not a number from " + std::to_string(least) +
                    " to " + std::to_string(most));
    }
    return number;
}

int checkedInstance(const std::string &text, const char *what) {
    return checkedNumber(text, what, 1, kInstanceMax);
}

std::string checkedMac(const std::string &text) {
    std::string result = macWithColons(text);
    if (result.empty()) {
        throw Usage(inQuotes(text) + " is not a MAC address: six pairs of digits, joined by colons, dashes or nothing");
    }
    return result;
}

bool isSameMac(const std::string &one, const std::string &other) {
    const std::string mac = macWithColons(one);
    const std::string same = macWithColons(other);
    return !mac.empty() && mac.size() == same.size() &&
           my_strnicmp(mac.c_str(), same.c_str(), static_cast<int>(mac.size())) == 0;
}

const std::string &checkedPath(const std::string &path) {
    if (path.empty()) {
        throw Usage("an object path is empty");
    }
    checkLength(path, kNameMax, "object path");
    return path;
}

const std::string &checkedName(const std::string &name) {
    if (name.empty()) {
        throw Usage("\"\" names no parameter");
    }
    checkLength(name, kNameMax, "parameter");
    return name;
}

void refuseTwice(const std::vector<std::string> &names) {
    for (auto name = names.begin(); name != names.end(); ++name) {
        if (std::find(names.begin(), name, *name) != name) {
            throw Usage(*name + " is given twice");
        }
    }
}

Parameter assignment(const std::string &word, const std::string &before) {
    const size_t equals = word.find('=');
    if (equals == std::string::npos || equals == 0) {
        throw Usage("expected NAME=VALUE after " + before);
    }
    Parameter result{checkedName(word.substr(0, equals)), word.substr(equals + 1)};
    if (result.value.size() > kValueMax) {
        throw Usage(result.name + ": the value has " + std::to_string(result.value.size()) + " bytes: the most is " +
                    std::to_string(kValueMax));
    }
    return result;
}

} // namespace pages
