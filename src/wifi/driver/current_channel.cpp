// SPDX-License-Identifier: MIT
// The channel in use.
#include "frame/bounded_text.h"
#include "frame/pipe.h"
#include "frame/text.h"
#include "wifi/driver/file.h"
#include "wifi/driver/radio_text.h"
#include "wifi/wifi_trace.h"

using namespace frame;
using namespace wifi;

int GetCurrentChannel(const char *ifname, int /*ignored*/, int *channel) {
    traceStart();
    const BoundedText<128> command("iwlist %s channel", ifname);
    Pipe pipe(command);
    if (!pipe.started()) {
        traceVola(Unit::WifiUtil, "popen()");
        return 0;
    }
    char line[kLineSize];
    while (pipe.readLine(line, sizeof(line))) {
        if (const char *current = findCurrentChannel(line)) {
            *channel = number(current);
        }
    }
    return 1;
}
