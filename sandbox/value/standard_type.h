// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace sandbox {

// The type, with its range or words, that TR-181 gives a setting: for gateways whose own definitions have none. Only
// the settings that hosts write most are known. `parameter` with "{i}" in place of instance numbers; "" for an unknown
// one.
std::string_view standardType(std::string_view parameter);

} // namespace sandbox
