// SPDX-License-Identifier: MIT
// The IPv6 block of the default WAN summary.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "network/interface_path.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

// Calls `store` with each value of a parameter in an answer, in order.
template <size_t Size, class Store>
void forEachValue(const Message &message, const char (&name)[Size], Store store) {
    for (ObjectNode &object : objects(*message)) {
        for (const ParamNode &param : params(object)) {
            if (isNamed(param, name)) {
                store(param.value);
            }
        }
    }
}

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

// A full field has no terminator: one character more than its width is too long.
template <size_t Size>
void storeAddress(char (&field)[Size], const char *value) {
    copyWhole(field, Size + 1, value);
}

void readEnable(ZintuWanInfo *info) {
    Message message;
    if (getObject(message, "Device.IPv6.") == 0) {
        forEachValue(message, "Enable",
                     [info](const char *value) { info->bIpv6Enable = contains(value, "true") ? 1 : 0; });
    }
}

void readType(ZintuWanInfo *info) {
    Message message;
    if (getObject(message, "Device.X_ZINTU_CurrentNetwork") == 0) {
        forEachValue(message, "WanIpv6Type", [info](const char *value) {
            if (*value) {
                copyText(info->sIpv6Type, typeOf(value));
            }
        });
    }
}

void readAddress(ZintuWanInfo *info) {
    // An interface path that ends in a dot gives a path with two.
    Path path;
    path.append(Terminated(info->sWanIpInterface));
    path.append(".IPv6Address.1");
    Message message;
    if (getObject(message, path) == 0) {
        forEachValue(message, "IPAddress", [info](const char *value) { storeAddress(info->sIpv6Address, value); });
    }
}

int readNextHop(ZintuWanInfo *info) {
    Path path;
    path.append("Device.Routing.Router.1.IPv6Forwarding.");
    path.append(info->nWanIpIfIndex);
    Message message;
    const int code = getObject(message, path);
    if (code == 0) {
        forEachValue(message, "NextHop", [info](const char *value) { storeAddress(info->sIpv6NextHop, value); });
    }
    message.leave(); // this message stays unreleased, whatever its result
    return code;
}

} // namespace

int32_t ZintuGet_WanIPv6(ZintuWanInfo *info) {
    readEnable(info);
    readType(info);
    readAddress(info);
    return readNextHop(info);
}
