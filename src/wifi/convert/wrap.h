// SPDX-License-Identifier: MIT
// Arithmetic on numbers that nobody has checked: arguments of hosts, answers of the layer and of tools.
#pragma once

namespace wifi {

// A sum that wraps around where a plain one would be undefined.
constexpr int wrappingAdd(int left, int right) {
    return static_cast<int>(static_cast<unsigned>(left) + static_cast<unsigned>(right));
}

} // namespace wifi
