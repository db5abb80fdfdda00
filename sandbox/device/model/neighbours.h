// SPDX-License-Identifier: MIT
//
// The networks within reach of a gateway: what a survey finds and what an end point can join.
#pragma once

#include "device/model/wifi.h"

#include <string>
#include <vector>

namespace device {

struct Neighbour {
    std::string band; // "2.4GHz" or "5GHz"
    std::string ssid, bssid;
    int signal = 0;   // dBm
    std::string line; // ten columns, as a survey's result has them, without a newline
};

// The gateway's own list where it has one, else the one that comes with the box. A line has the band and then the ten
// columns of a survey's result, separated by tabs; lines that begin with '#' are comments. Throws std::runtime_error
// for a file that can not be read or a line with too few columns.
std::vector<Neighbour> readNeighbours();

// What an interface hears: the networks of its band but for those of `interfaces`, the gateway's own.
std::vector<Neighbour> within(const std::vector<Neighbour> &neighbours, const Interface &interface,
                              const std::vector<Interface> &interfaces);

} // namespace device
