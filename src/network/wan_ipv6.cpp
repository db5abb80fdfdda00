// SPDX-License-Identifier: MIT
// The IPv6 block of the default WAN summary.
#include "frame/lookup.h"
#include "frame/text.h"
#include "network/path.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

struct TypeRow {
    char part[12];
    char type[8];
};

// The first row whose text the value contains.
constexpr TypeRow kTypes[] = {
    {"slaac", "slaac"}, {"stateless", "dhcpv6"}, {"stateful", "dhcpv6"}, {"static", "static"}, {"", "dhcpv6"},
};

const char *typeOf(const char *value) {
    const TypeRow *row = kTypes;
    while (!contains(value, row->part)) {
        ++row;
    }
    return row->type;
}

void readEnable(ZintuWanInfo *info) {
    Message message;
    if (getObject(message, "Device.IPv6.") != 0) {
        return;
    }
    forEachValue(*message, "Enable",
                 [info](const char *enable) { info->bIpv6Enable = contains(enable, "true") ? 1 : 0; });
}

void readType(ZintuWanInfo *info) {
    Message message;
    if (getObject(message, "Device.X_ZINTU_CurrentNetwork") != 0) {
        return;
    }
    forEachValue(*message, "WanIpv6Type", [info](const char *type) {
        if (*type) {
            copyText(info->sIpv6Type, typeOf(type));
        }
    });
}

// A full field has no terminator: one character more than its width is too long.
void storeAddress(const char *address, char (&field)[46]) {
    copyWhole(field, sizeof(field) + 1, address);
}

void readIPv6Address(ZintuWanInfo *info) {
    // An interface path that ends in a dot gives a path with two.
    const Path path("%s.IPv6Address.1", Terminated(info->sWanIpInterface).c_str());
    Message message;
    if (getObject(message, path) == 0) {
        forEachValue(*message, "IPAddress", [info](const char *address) { storeAddress(address, info->sIpv6Address); });
    }
}

int readNextHop(ZintuWanInfo *info) {
    const Path path("Device.Routing.Router.1.IPv6Forwarding.%d", info->nWanIpIfIndex);
    Message message;
    const int code = getObject(message, path);
    if (code == 0) {
        forEachValue(*message, "NextHop", [info](const char *address) { storeAddress(address, info->sIpv6NextHop); });
    }
    message.leave(); // this message stays unreleased, after a failure too
    return code;
}

} // namespace

int32_t ZintuGet_WanIPv6(ZintuWanInfo *info) {
    readEnable(info);
    readType(info);
    readIPv6Address(info);
    return readNextHop(info);
}
