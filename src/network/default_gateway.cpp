// SPDX-License-Identifier: MIT
// Which WAN connection carries the default route.
#include "network/pages.h"
#include "network/request.h"

using namespace network;

int32_t ZintuGet_DefGw(ZintuWanInfo *info) {
    return fetch(kDefaultGateway, *info, "faltocal_send_main is Failure \n");
}
