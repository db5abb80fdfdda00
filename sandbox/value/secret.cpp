// SPDX-License-Identifier: MIT
#include "value/secret.h"

#include "value/escape.h"

#include <algorithm>
#include <iterator>
#include <strings.h>

namespace sandbox {

bool isSecretName(std::string_view name) {
    // The command-line tool hides the same: tools/pages/secret.cpp.
    constexpr std::string_view kEndings[] = {"authkey",      "passphrase", "passwd", "password", "pin",
                                             "presharedkey", "privatekey", "psk",    "pwd",      "secret",
                                             "token",        "userpass",   "wepkey"};
    return std::any_of(std::begin(kEndings), std::end(kEndings), [name](std::string_view ending) {
        return name.size() >= ending.size() &&
               strncasecmp(name.data() + name.size() - ending.size(), ending.data(), ending.size()) == 0;
    });
}

std::string quotedValue(std::string_view parameter, std::string_view value) {
    return isSecretName(parameter) ? std::string(kHidden) : quotedShort(value);
}

std::string withoutSecrets(std::string line) {
    constexpr std::string_view kArrow = "=>";
    size_t arrow = line.find(kArrow);
    while (arrow != std::string::npos && !isSecretName(std::string_view(line).substr(0, arrow))) {
        arrow = line.find(kArrow, arrow + 1); // the library writes "==>" in front
    }
    const size_t start = arrow + kArrow.size();
    const size_t end = line.ends_with(']') ? line.size() - 1 : line.size();
    if (arrow != std::string::npos && start < end) {
        line.replace(start, end - start, kHidden);
    }
    return line;
}

} // namespace sandbox
