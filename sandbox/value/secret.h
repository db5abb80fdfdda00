// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace sandbox {

// What logs and reasons show in place of a secret.
inline constexpr std::string_view kHidden = "(hidden)";

// What the command line and its captures have in place of a secret.
inline constexpr std::string_view kMasked = "(hidden)";

// Whether a parameter holds a pass phrase, a password or a key, by its name.
bool isSecretName(std::string_view name);

// A parameter's value as logs and reasons quote it: cut to a readable length; kHidden for a secret.
std::string quotedValue(std::string_view parameter, std::string_view value);

// A line that the library wrote, with kHidden in place of a secret that stands behind its name and "=>".
std::string withoutSecrets(std::string line);

} // namespace sandbox
