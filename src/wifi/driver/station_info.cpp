// SPDX-License-Identifier: MIT
// The stations of an access point.
#include "frame/bounded_text.h"
#include "frame/pipe.h"
#include "wifi/driver/file.h"
#include "wifi/driver/station_lines.h"
#include "wifi/wifi_trace.h"

#include <cstring>

using namespace frame;
using namespace wifi;

int GetStaInfo(const char *ifname, const char *macFilter, WifiStaList *list) {
    traceStart();
    if (!ifname || !*ifname || !list) {
        traceError({}, "arg is Failure\n");
        return list ? static_cast<int>(list->count) : 0;
    }
    memset(list, 0, sizeof(*list));
    const BoundedText<128> path("/tmp/wlan_wave/sta_info_%s", ifname);
    const BoundedText<200> command(
        "cat /proc/net/mtlk/%s/PeerFlowStatus | grep 'STA MAC\\| Short-term RSSI average per antenna' > %s", ifname,
        path.c_str());
    if (!runShell(command)) {
        traceVola(Unit::WifiUtil, "system is Failure\n");
        return 0;
    }
    File file;
    if (!file.open(path)) {
        traceVola(Unit::WifiUtil, "%s does not exist\n", path.c_str());
        return 0;
    }
    StationParser parser(macFilter && isValidMacAddress(macFilter) != 0 ? macFilter : nullptr, *list);
    char line[kLineSize];
    while (file.readLine(line)) {
        parser.addLine(line);
    }
    return static_cast<int>(list->count);
}
