// SPDX-License-Identifier: MIT
// Channel use drawn with letters: readable on any terminal of 80 columns, without colour.
#pragma once

#include "pages/report.h"

#include <string>
#include <vector>

namespace pages::wifi {

constexpr int kLast24GHz = 14; // channel

// One network, or one of the gateway's own radios.
struct ChartedNetwork {
    int channel = 0;
    int width = 20;        // MHz
    std::string side = {}; // "upper" or "lower": where the secondary channel of 40 MHz at 2.4 GHz lies
    Value dbm = {};        // null: an own radio
    std::string name = {}; // any bytes
};

// The channels that a network takes, from the first to the last.
struct ChannelSpan {
    int first = 0;
    int last = 0;
};
ChannelSpan spanOf(const ChartedNetwork &network);

// Whether a network has a secondary channel and it is not known where: its span is that of 20 MHz.
bool isSideUnknown(const ChartedNetwork &network);

// A line for each network in its band, own radios first, then by strength; below, how many others use each channel.
std::vector<ChartLine> chartOf(std::vector<ChartedNetwork> networks);

} // namespace pages::wifi
