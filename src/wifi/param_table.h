// SPDX-License-Identifier: MIT
// The rows of a settings table.
#pragma once

#include "caltofal.h"

#include <cstddef>
#include <span>

namespace wifi {

inline constexpr int32_t kTableRows = 100;

// The rows in use.
inline std::span<const WifiParamRow> rows(const WifiParamTable &table) {
    const int32_t count = table.count < kTableRows ? table.count : kTableRows;
    return {table.rows, static_cast<size_t>(count > 0 ? count : 0)};
}

} // namespace wifi
