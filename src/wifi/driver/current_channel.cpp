// SPDX-License-Identifier: MIT
#include "wifi/driver/current_channel.h"

#include "frame/pipe.h"
#include "wifi/driver/file.h"
#include "wifi/driver/formatted.h"
#include "wifi/wifi_trace.h"

#include <cstring>

using namespace frame;
using namespace wifi;

namespace wifi {

const char *findCurrentChannel(const char *line) {
    constexpr char kLabel[] = "Current Channel=";
    const char *found = strstr(line, kLabel);
    return found ? found + sizeof(kLabel) - 1 : nullptr;
}

} // namespace wifi

int GetCurrentChannel(const char *ifname, int /*ignored*/, int *channel) {
    traceStart();
    const Formatted<128> command("iwlist %s channel", ifname);
    Pipe pipe(command);
    if (!pipe.started()) {
        traceVola(Unit::WifiUtil, "popen()");
        return 0;
    }
    char line[kLineSize];
    while (pipe.readLine(line, sizeof(line))) {
        if (const char *number = findCurrentChannel(line)) {
            *channel = ConvInt(number);
        }
    }
    return 1;
}
