// SPDX-License-Identifier: MIT
// The IPv4 forwarding entries of a WAN interface.
#pragma once

#include "caltofal.h"

namespace network {

inline constexpr char kForwardingTable[] = "Device.Routing.Router.1.IPv4Forwarding.";

// The gateway of a forwarding entry that DHCP, PPPoE or a static setting made, or nullptr.
const char *gatewayOf(const char *gateway, const char *origin);

} // namespace network
