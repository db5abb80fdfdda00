// SPDX-License-Identifier: MIT
// The rows of a settings table.
#pragma once

#include "caltofal.h"

#include <cstddef>
#include <span>
#include <string_view>

namespace wifi {

inline constexpr int32_t kTableRows = 100;

// The rows in use.
inline std::span<const WifiParamRow> rows(const WifiParamTable &table) {
    const int32_t count = table.count < kTableRows ? table.count : kTableRows;
    return {table.rows, static_cast<size_t>(count > 0 ? count : 0)};
}

// Appends a row, its texts cut as SetParam() cuts them; false when the table is full or its count is negative.
bool appendRow(WifiParamTable &table, std::string_view object, std::string_view parameter, std::string_view value);

} // namespace wifi
