// SPDX-License-Identifier: MIT
#include "value/secret.h"

#include <algorithm>
#include <iterator>

namespace sandbox {

bool isSecretName(std::string_view name) {
    constexpr std::string_view kEndings[] = {"PIN",          "Passphrase", "Password", "Pin",
                                             "PreSharedKey", "PrivateKey", "Secret",   "WEPKey"};
    return std::any_of(std::begin(kEndings), std::end(kEndings),
                       [name](std::string_view ending) { return name.ends_with(ending); });
}

} // namespace sandbox
