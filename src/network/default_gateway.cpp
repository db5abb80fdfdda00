// SPDX-License-Identifier: MIT
// Which WAN connection carries the default route.
#include "frame/range.h"
#include "network/field_tables.h"
#include "network/request.h"

using namespace frame;
using namespace network;

int32_t ZintuGet_DefGw(ZintuWanInfo *info) {
    Message message;
    const int code = getObject(message, "Device.X_ZINTU_CurrentNetwork");
    if (code != 0) {
        return failed(code, "faltocal_send_main is Failure \n");
    }
    for (ObjectNode &object : objects(*message)) {
        fill(object, kDefaultGateway, *info);
    }
    return 0;
}
