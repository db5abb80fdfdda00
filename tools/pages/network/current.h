// SPDX-License-Identifier: MIT
// The current network, on which several pages hang.
#pragma once

#include "pages/failure.h"
#include "pages/value.h"

#include <string>
#include <vector>

namespace pages {

// What is said where the current network does not tell.
inline constexpr const char *kNoMode = "Device.X_ZINTU_CurrentNetwork: no OperationMode is given";
inline constexpr const char *kNoDefaultWan = "Device.X_ZINTU_CurrentNetwork: no WanIpInterface is given";

// The operation mode; its bits tell what the device is.
int operationMode();
inline constexpr int kWifiWanBit = 2;
inline constexpr int kRouterBit = 4; // a router, or the master of a mesh

// A DNS server as a record holds it: what is not an address is shown as it is, and told in a note.
Value server(const std::string &text, std::vector<std::string> &notes);

// The default WAN names an interface that the gateway does not have.
Failure noSuchInterface(const std::string &interface);

// The IP interface object of the default WAN, which is there. Throws Failure.
std::string gatewayInterface();

} // namespace pages
