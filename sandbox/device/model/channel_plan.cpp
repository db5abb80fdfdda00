// SPDX-License-Identifier: MIT
#include "device/model/channel_plan.h"

#include <algorithm>

namespace device {
namespace {

constexpr int kStep = 4; // between the numbers of neighbouring 20 MHz channels at 5 GHz

bool is24GHz(const Radio &radio) {
    return radio.band == "2.4GHz";
}

bool mayUse(const Radio &radio, int channel) {
    return std::find(radio.channels.begin(), radio.channels.end(), channel) != radio.channels.end();
}

bool supports(const Radio &radio, const char *width) {
    return radio.widths.empty() || std::find(radio.widths.begin(), radio.widths.end(), width) != radio.widths.end();
}

// The lowest channel of the block of `count` 20 MHz channels at 5 GHz that holds the channel.
int blockStart(int channel, int count) {
    const int origin = channel < 149 ? 36 : 149;
    return channel - (channel - origin) % (kStep * count);
}

// Whether the radio may use that whole block.
bool mayUseBlock(const Radio &radio, int channel, int count) {
    const int start = blockStart(channel, count);
    for (int i = 0; i < count; ++i) {
        if (!mayUse(radio, start + i * kStep)) {
            return false;
        }
    }
    return true;
}

bool allowsAbove(const Radio &radio, int channel) {
    const bool place = is24GHz(radio) || blockStart(channel, 2) == channel;
    return supports(radio, "40MHz") && place && mayUse(radio, channel + kStep);
}

bool allowsBelow(const Radio &radio, int channel) {
    const bool place = is24GHz(radio) || blockStart(channel, 2) != channel;
    return supports(radio, "40MHz") && place && mayUse(radio, channel - kStep);
}

bool hasRadar(const Radio &radio, int channel) {
    return !is24GHz(radio) && channel >= 52 && channel <= 144;
}

} // namespace

int frequencyOf(const Radio &radio, int channel) {
    if (is24GHz(radio)) {
        return channel == 14 ? 2484 : 2407 + 5 * channel;
    }
    return 5000 + 5 * channel;
}

std::string channelListing(const Radio &radio) {
    std::string listing;
    for (const int channel : radio.channels) {
        const auto mark = [&](bool allowed, const char *word) {
            listing += ' ';
            listing += allowed ? word : "-";
        };
        listing += std::to_string(channel) + ' ' + std::to_string(frequencyOf(radio, channel));
        mark(!is24GHz(radio) && supports(radio, "160MHz") && mayUseBlock(radio, channel, 8), "160");
        mark(!is24GHz(radio) && supports(radio, "80MHz") && mayUseBlock(radio, channel, 4), "80");
        mark(allowsAbove(radio, channel), "40+");
        mark(allowsBelow(radio, channel), "40-");
        mark(hasRadar(radio, channel), "DFS");
        listing += '\n';
    }
    return listing;
}

} // namespace device
