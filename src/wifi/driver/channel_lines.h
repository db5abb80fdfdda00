// SPDX-License-Identifier: MIT
// The channels of a radio as its driver lists them.
#pragma once

#include "caltofal.h"

namespace wifi {

// Which of the listed channels are offered.
struct ChannelRules {
    bool radar;     // also those that need radar detection
    bool only24GHz; // none above the 2.4 GHz band
};

// Whether a channel list has room for another entry.
inline bool hasRoom(const WifiChannelList &list) {
    return list.count < sizeof(list.entries) / sizeof(list.entries[0]);
}

// Appends the channel of a line of `iw phy PHY show_channel` where the rules offer it. The line is cut into words; the
// list must have room.
void addChannelLine(char *line, const ChannelRules &rules, WifiChannelList &list);

} // namespace wifi
