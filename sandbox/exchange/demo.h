// SPDX-License-Identifier: MIT
//
// The demo gateways, carried inside the program.
#pragma once

#include <span>
#include <string_view>

namespace sandbox {

struct Demo {
    std::string_view name;
    std::string_view text; // a gateway file
};

// In the order of their names.
std::span<const Demo> demos();

// NULL when no demo has that name.
const Demo *findDemo(std::string_view name);

} // namespace sandbox
