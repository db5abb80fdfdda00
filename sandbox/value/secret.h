// SPDX-License-Identifier: MIT
#pragma once

#include "help/secret_rule.h"

#include <string>
#include <string_view>

namespace sandbox {

using help::isHidden;
using help::isSecretName;
using help::kHidden;
using help::withoutUrlPasswords;

// A parameter's value as logs and reasons quote it: cut to a readable length; kHidden for a secret, and in URLs.
std::string quotedValue(std::string_view parameter, std::string_view value);

// A name or path of a message as logs and reasons show it: without what stands behind a "=" or ":" in it. No name has
// these; somebody put a value behind it, which may be a secret. quotedName() is quotedShort() of the same.
std::string shownName(std::string_view name);
std::string quotedName(std::string_view name);

// A line that the library wrote, with kHidden in place of a secret that stands behind its name and
// "=>", and of passwords in URLs.
std::string withoutSecrets(std::string line);

} // namespace sandbox
