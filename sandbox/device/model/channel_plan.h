// SPDX-License-Identifier: MIT
#pragma once

#include "device/model/wifi.h"

#include <string>

namespace device {

// Centre frequency in MHz.
int frequencyOf(const Radio &radio, int channel);

// A line for each channel that the radio may use: channel, frequency, and whether it allows 160 MHz ("160" or "-"),
// 80 MHz ("80"), a secondary channel above ("40+") and below ("40-"), and whether radar has precedence ("DFS").
std::string channelListing(const Radio &radio);

} // namespace device
