// SPDX-License-Identifier: MIT
// What the router is doing now.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "network/request.h"

#include <cstdlib>

using namespace frame;
using namespace network;

int32_t ZintuGet_OperMode(void) {
    Message message;
    const int code = getObject(message, "Device.X_ZINTU_CurrentNetwork");
    if (code != 0) {
        return traceFailure(code, "faltocal_send_main is Failure \n");
    }
    for (ObjectNode &object : objects(*message)) {
        const char *mode = findOrTrace(object, "OperationMode");
        if (mode && *mode) {
            return number(mode);
        }
    }
    return -1;
}
