// SPDX-License-Identifier: MIT
#include "value/secret.h"

#include "value/escape.h"

#include <algorithm>
#include <iterator>

namespace sandbox {

bool isSecretName(std::string_view name) {
    // The command-line tool hides the same: tools/pages/secret.cpp.
    constexpr std::string_view kEndings[] = {"PIN",          "Passphrase", "Password", "Pin",
                                             "PreSharedKey", "PrivateKey", "Secret",   "WEPKey"};
    return std::any_of(std::begin(kEndings), std::end(kEndings),
                       [name](std::string_view ending) { return name.ends_with(ending); });
}

std::string quotedValue(std::string_view parameter, std::string_view value) {
    return isSecretName(parameter) ? std::string(kHidden) : quotedShort(value);
}

} // namespace sandbox
