// SPDX-License-Identifier: MIT
#include "wifi/driver/channel_lines.h"

#include "frame/text.h"
#include "wifi/convert/words.h"
#include "wifi/convert/wrap.h"

#include <cstring>

using namespace frame;

namespace wifi {
namespace {

constexpr int kAbove24GHz = 2485; // MHz
constexpr int kSecondaryDistance = 4;

// The words of a line, in its order.
enum Word : uint8_t { kChannel, kFrequency, kIs160, kIs80, kIs40Above, kIs40Below, kRadar, kWordCount };

bool isOffered(const char *const (&words)[kWordCount], int frequency, const ChannelRules &rules) {
    const bool needsRadar = strncmp(words[kRadar], "DFS", 3) == 0;
    return (!needsRadar || rules.radar) && (!rules.only24GHz || frequency < kAbove24GHz);
}

// Fills an entry that is all zero.
void fillEntry(const char *const (&words)[kWordCount], int frequency, WifiChannelEntry &entry) {
    entry.channel = number(words[kChannel]);
    entry.frequency = frequency;
    int32_t *bandwidth = entry.bandwidths;
    *bandwidth++ = 20;
    const bool above = strcmp(words[kIs40Above], "40+") == 0;
    const bool below = strcmp(words[kIs40Below], "40-") == 0;
    if (above) {
        entry.aboveChannel = wrappingAdd(entry.channel, kSecondaryDistance);
    }
    if (below) {
        entry.belowChannel = wrappingAdd(entry.channel, -kSecondaryDistance);
    }
    if (above || below) {
        *bandwidth++ = 40;
    }
    if (strcmp(words[kIs80], "80") == 0) {
        *bandwidth++ = 80;
    }
    if (strcmp(words[kIs160], "160") == 0) {
        *bandwidth = 160;
    }
}

} // namespace

void addChannelLine(char *line, const ChannelRules &rules, WifiChannelList &list) {
    const char *words[kWordCount];
    for (const char *&word : words) {
        word = nextWord(line);
    }
    if (!*words[kChannel] || !*words[kFrequency]) {
        return;
    }
    const int frequency = number(words[kFrequency]);
    if (isOffered(words, frequency, rules)) {
        fillEntry(words, frequency, list.entries[list.count]);
        ++list.count;
    }
}

} // namespace wifi
