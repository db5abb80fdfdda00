// SPDX-License-Identifier: MIT
// The current network, on which several pages hang.
#pragma once

#include "pages/layer/lacking.h"
#include "pages/value.h"

#include <string>
#include <vector>

namespace pages {

// What is said where the current network does not tell.
inline constexpr const char *kNoMode = "Device.X_ZINTU_CurrentNetwork: no OperationMode is given";
inline constexpr const char *kNoDefaultWan = "Device.X_ZINTU_CurrentNetwork: no WanIpInterface is given";

// The table of name servers: those in use, and those set by hand.
inline constexpr const char *kNameServers = "Device.DNS.Client.Server";

// The table of WAN connections: their modes and UCI sections.
inline constexpr const char *kWanConnections = "Device.X_LANTIQ_COM_NwHardware.WANConnection";

// The operation mode; its bits tell what the device is.
int operationMode();
inline constexpr int kWifiWanBit = 2;
inline constexpr int kRouterBit = 4; // a router, or the master of a mesh

// The library looks for name servers among the enabled ones of the table where no DHCP client tells any: with one found
// the gateway need not have clients.
void needNoDhcpClient(Lacking &lacking, const std::string &found);

// Where the default WAN's interface ends with a dot, the library asks for objects below it by names with two: a note
// says that instead of naming what is not missing. Before the others are told.
void tellFinalDot(const std::string &interface, Lacking &lacking, std::vector<std::string> &notes);

// A DNS server as a record holds it: what is not an address is shown as it is, and told in a note.
Value server(const std::string &text, std::vector<std::string> &notes);

// The default WAN names an interface that the gateway does not have.
Failure noSuchInterface(const std::string &interface);

// The IP interface object of the default WAN, which is there. Throws Failure.
std::string gatewayInterface();

} // namespace pages
