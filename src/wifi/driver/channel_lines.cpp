// SPDX-License-Identifier: MIT
#include "wifi/driver/channel_lines.h"

#include "frame/text.h"
#include "wifi/convert/words.h"
#include "wifi/convert/wrap.h"

#include <cstring>

using namespace frame;

namespace wifi {
namespace {

constexpr int kAbove2_4GHz = 2485; // MHz
constexpr int kSecondaryDistance = 4;

// The words of a line, in its order.
enum Word : uint8_t { Channel, Frequency, Is160, Is80, Is40Above, Is40Below, Radar, WordCount };

bool isOffered(const char *const (&words)[WordCount], int frequency, const ChannelRules &rules) {
    const bool needsRadar = strncmp(words[Radar], "DFS", 3) == 0;
    return (!needsRadar || rules.radar) && (!rules.only2_4GHz || frequency < kAbove2_4GHz);
}

// Fills an entry that is all zero.
void fillEntry(const char *const (&words)[WordCount], int frequency, WifiChannelEntry &entry) {
    entry.channel = number(words[Channel]);
    entry.frequency = frequency;
    int32_t *bandwidth = entry.bandwidths;
    *bandwidth++ = 20;
    const bool above = strcmp(words[Is40Above], "40+") == 0;
    const bool below = strcmp(words[Is40Below], "40-") == 0;
    if (above) {
        entry.aboveChannel = wrappingAdd(entry.channel, kSecondaryDistance);
    }
    if (below) {
        entry.belowChannel = wrappingAdd(entry.channel, -kSecondaryDistance);
    }
    if (above || below) {
        *bandwidth++ = 40;
    }
    if (strcmp(words[Is80], "80") == 0) {
        *bandwidth++ = 80;
    }
    if (strcmp(words[Is160], "160") == 0) {
        *bandwidth = 160;
    }
}

} // namespace

void addChannelLine(char *line, const ChannelRules &rules, WifiChannelList &list) {
    const char *words[WordCount];
    for (const char *&word : words) {
        word = nextWord(line);
    }
    if (!*words[Channel] || !*words[Frequency]) {
        return;
    }
    const int frequency = number(words[Frequency]);
    if (isOffered(words, frequency, rules)) {
        fillEntry(words, frequency, list.entries[list.count]);
        ++list.count;
    }
}

} // namespace wifi
