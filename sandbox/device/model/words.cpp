// SPDX-License-Identifier: MIT
#include "device/model/words.h"

#include <charconv>

namespace device {
namespace {

constexpr int kHighest24GHz = 14;

} // namespace

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
