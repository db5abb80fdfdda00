// SPDX-License-Identifier: MIT
// The channels that a radio leaves to radar (DFS).
#pragma once

#include "pages/table.h"

#include <string>

namespace pages::wifi {

// Those from 5,250 to 5,730 MHz, in every regulatory domain.
constexpr bool isRadarChannel(int channel) {
    return channel >= 52 && channel <= 144;
}

// "52 (DFS)": a channel as tables show it.
inline Cell markedChannel(int channel) {
    return {.text = std::to_string(channel), .remark = isRadarChannel(channel) ? " (DFS)" : ""};
}

} // namespace pages::wifi
