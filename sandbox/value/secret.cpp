// SPDX-License-Identifier: MIT
#include "value/secret.h"

#include "value/escape.h"

#include <utility>

namespace sandbox {

std::string quotedValue(std::string_view parameter, std::string_view value) {
    return isSecretName(parameter) ? std::string(kHidden) : quotedShort(withoutUrlPasswords(std::string(value)));
}

std::string shownName(std::string_view name) {
    const size_t end = name.find_first_of("=:");
    return std::string(name.substr(0, end)) + (end == std::string_view::npos ? "" : "...");
}

std::string quotedName(std::string_view name) {
    return quotedShort(shownName(name));
}

std::string withoutSecrets(std::string line) {
    return withoutUrlPasswords(help::withoutSecretRow(std::move(line)));
}

} // namespace sandbox
