// SPDX-License-Identifier: MIT
// The channels that a radio may use.
#include "frame/bounded_text.h"
#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/pipe.h"
#include "wifi/driver/channel_lines.h"
#include "wifi/driver/file.h"
#include "wifi/object_path.h"
#include "wifi/wifi_trace.h"

#include <cstring>
#include <iterator>

using namespace frame;
using namespace wifi;

namespace {

// Starts the tool that lists the channels. Where the radio's number is unknown, its name is taken from the interface's.
Pipe startListing(const char *ifname) {
    const Place place(Unit::WifiUtil, __LINE__, "GetChannelList");
    const int phyNumber = GetPhyNumber(ifname);
    if (phyNumber < 0) {
        traceVola(place, "GetPhyNumber Fail!!!\n");
        const char *phyName = DevToPhy_Str(ifname, Interface_DevToPhy_Table, std::size(Interface_DevToPhy_Table));
        return Pipe(BoundedText<128>("iw phy %s show_channel", phyName));
    }
    const BoundedText<128> command("iw phy phy%d show_channel", phyNumber);
    traceVola(place, "GetPhyNumber %s\n", command.c_str());
    return Pipe(command);
}

} // namespace

int GetChannelList(const char *ifname, int radioIndex, WifiChannelList *list) {
    memset(list, 0, sizeof(*list));
    Message message;
    message.leave(); // never released, on purpose
    if (faltocal_send_main_multi_obj(message, ObjectPath(Table::Radio, radioIndex), "get_leaf_node", "get", 1,
                                     "IEEE80211hEnabled") == -1) {
        traceFailedRequest();
        return 0;
    }
    const bool radar = ConvStrToBool(lastValue(*message, "IEEE80211hEnabled")) != 0;
    const ChannelRules rules = {radar, radioIndex == 1};
    Pipe pipe = startListing(ifname);
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
