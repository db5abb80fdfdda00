// SPDX-License-Identifier: MIT
//
// The texts of the wireless driver's files below /proc/net/mtlk/.
#pragma once

#include "device/model/neighbours.h"
#include "device/model/wifi.h"

#include <string>
#include <vector>

namespace device {

// The other ends of the interface's links: an access point's stations, or the network that an end point has joined.
std::vector<Station> peersOf(const Interface &interface, const std::vector<Neighbour> &heard);

// "PeerFlowStatus": lines "value : description". An antenna that the radio does not have gives -128.
std::string peerFlowStatus(const Radio &radio, const std::vector<Station> &peers);

// "channel": the figures of the channel in use.
std::string channelFigures(const Radio &radio);

} // namespace device
