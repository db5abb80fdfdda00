// SPDX-License-Identifier: MIT
// IPv6 prefix delegation on the current WAN.
#include "frame/lookup.h"
#include "frame/range.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

int32_t ZintuGet_IPv6PD(void) {
    Message message;
    const int code = getObject(message, "Device.X_ZINTU_CurrentNetwork");
    if (code != 0) {
        return traceFailure(code, "faltocal_send_main is Failure\n", 1442);
    }
    int32_t enabled = 0;
    for (ObjectNode &object : objects(*message)) {
        for (const ParamNode &param : params(object)) {
            if (isNamed(param, "EnableIpv6PD") && strstr(param.value, "true")) {
                enabled = 1;
            }
        }
    }
    return enabled;
}
