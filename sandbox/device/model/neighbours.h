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

// Where the networks are known from.
enum class Origin {
    File,    // a list that was put beside the gateway
    Gateway, // its Device.WiFi.NeighboringWiFiDiagnostic.Result.
    MadeUp,  // the list that comes with the box
};

struct Surroundings {
    Origin origin = Origin::MadeUp;
    std::vector<Neighbour> networks;
};

// "file", "gateway" or "made-up".
const char *nameOf(Origin origin);

// The first of the three origins that there is. Throws std::runtime_error for a list that cannot be read or has a wrong
// line.
Surroundings readSurroundings(sandbox::Database &database);

// What an interface hears: the networks of its band without those of `interfaces`, the gateway's own.
std::vector<Neighbour> within(const std::vector<Neighbour> &neighbours, const Interface &interface,
                              const std::vector<Interface> &interfaces);

} // namespace device
