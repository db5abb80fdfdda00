// SPDX-License-Identifier: MIT
#include "network/ipv4_forwarding.h"

#include "frame/text.h"

using namespace frame;

namespace network {

const char *gatewayOf(const char *gateway, const char *origin) {
    const bool counts =
        gateway && origin && *gateway &&
        (beginsWith(origin, "DHCPv4") || beginsWith(origin, "Static") || beginsWith(origin, "X_LANTIQ_COM_PPPoE"));
    return counts ? gateway : nullptr;
}

} // namespace network
