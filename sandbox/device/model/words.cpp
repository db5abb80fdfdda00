// SPDX-License-Identifier: MIT
#include "device/model/words.h"

#include <algorithm>
#include <charconv>

namespace device {
namespace {

constexpr int kHighest24GHz = 14;

std::string trimmed(const std::string &text) {
    const size_t first = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

} // namespace

std::vector<std::string> commaSeparated(const std::string &text) {
    std::vector<std::string> parts;
    for (size_t start = 0; start < text.size();) {
        const size_t end = std::min(text.find(',', start), text.size());
        parts.push_back(trimmed(text.substr(start, end - start)));
        start = end + 1;
    }
    return parts;
}

int leadingNumber(const std::string &text) {
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string bandOf(const std::string &said, int channel) {
    if (!said.empty()) {
        return said;
    }
    return channel <= kHighest24GHz ? "2.4GHz" : "5GHz";
}

} // namespace device
