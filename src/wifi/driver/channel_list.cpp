// SPDX-License-Identifier: MIT
#include "wifi/driver/channel_lines.h"

#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/pipe.h"
#include "frame/range.h"
#include "wifi/convert/words.h"
#include "wifi/convert/wrap.h"
#include "wifi/driver/file.h"
#include "wifi/driver/formatted.h"
#include "wifi/object_path.h"
#include "wifi/wifi_trace.h"

#include <cstring>
#include <iterator>

using namespace frame;
using namespace wifi;

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
    entry.channel = ConvInt(words[Channel]);
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

using Command = Formatted<128>;

// Where the radio's number is unknown, its name is taken from the interface's.
Command listCommand(const char *ifname, int phyNumber) {
    const Place place(Unit::WifiUtil, __LINE__, "GetChannelList");
    if (phyNumber < 0) {
        traceVola(place, "GetPhyNumber Fail!!!\n");
        const char *phyName = DevToPhy_Str(ifname, Interface_DevToPhy_Table, std::size(Interface_DevToPhy_Table));
        return Command("iw phy %s show_channel", phyName);
    }
    const Command command("iw phy phy%d show_channel", phyNumber);
    traceVola(place, "GetPhyNumber %s\n", command.c_str());
    return command;
}

// Whether the radio has 802.11h on; the last of several answers counts.
bool radarAllowed(const MsgHeader &answer) {
    bool allowed = false;
    for (ObjectNode &object : objects(answer)) {
        for (const ParamNode &param : params(object)) {
            if (sameName(param.name, "IEEE80211hEnabled")) {
                allowed = ConvStrToBool(param.value) != 0;
            }
        }
    }
    return allowed;
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
    const int frequency = ConvInt(words[Frequency]);
    if (isOffered(words, frequency, rules)) {
        fillEntry(words, frequency, list.entries[list.count]);
        ++list.count;
    }
}

} // namespace wifi

int GetChannelList(const char *ifname, int radioIndex, WifiChannelList *list) {
    memset(list, 0, sizeof(*list));
    Message message;
    message.leave(); // hosts live with the loss of this one
    if (faltocal_send_main_multi_obj(message, ObjectPath(Table::Radio, radioIndex), "get_leaf_node", "get", 1,
                                     "IEEE80211hEnabled") == -1) {
        traceFailedRequest();
        return 0;
    }
    const ChannelRules rules = {radarAllowed(*message), radioIndex == 1};
    Pipe pipe(listCommand(ifname, GetPhyNumber(ifname)));
    if (!pipe.started()) {
        traceVola(Unit::WifiUtil, "popen()");
        return 0;
    }
    char line[kLineSize];
    while (hasRoom(*list) && pipe.readLine(line, sizeof(line))) {
        addChannelLine(line, rules, *list);
    }
    return static_cast<int>(list->count);
}
