// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace sandbox {

// What logs and reasons show in place of a secret.
inline constexpr std::string_view kHidden = "***";

// Whether a parameter holds a pass phrase, a password or a key, by its name.
bool isSecretName(std::string_view name);

} // namespace sandbox
