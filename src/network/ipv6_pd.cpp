// SPDX-License-Identifier: MIT
// IPv6 prefix delegation on the current WAN.
#include "frame/lookup.h"
#include "frame/text.h"
#include "network/request.h"

using namespace frame;
using namespace network;

int32_t ZintuGet_IPv6PD(void) {
    Message message;
    const int code = getObject(message, "Device.X_ZINTU_CurrentNetwork");
    if (code != 0) {
        return traceFailure(code, "faltocal_send_main is Failure\n", 1442);
    }
    int32_t enabled = 0;
    forEachValue(*message, "EnableIpv6PD", [&enabled](const char *value) {
        if (contains(value, "true")) {
            enabled = 1;
        }
    });
    return enabled;
}
