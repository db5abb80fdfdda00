// SPDX-License-Identifier: MIT
//
// The Wi-Fi part of a gateway, as its wireless driver sees it.
#pragma once

#include "store/database.h"

#include <optional>
#include <string>
#include <vector>

namespace device {

constexpr int kUsualNoise = -95; // dBm, where nothing is said

struct Radio {
    std::string path; // of its object, with a final dot
    int place = 0;    // among the gateway's radios, from 0
    bool enabled = false;
    std::string band; // "2.4GHz" or "5GHz"
    int channel = 0;
    int width = 0; // MHz
    std::vector<int> channels;
    std::vector<std::string> widths; // such as "80MHz"; none: not said
};

struct Station {
    std::string mac;
    int signal = 0; // dBm; 0: unknown
    int noise = 0;  // dBm
};

// The station side of a link to another access point.
struct Uplink {
    bool enabled = false;
    std::string ssid; // of the network to join
    int signal = 0;   // dBm; 0: unknown
};

struct Interface {
    std::string name; // as Device.WiFi.SSID says, such as "wlan0"
    int phy = 0;      // the number of its wireless device: of wlan2 and wlan2.1 it is 2, else that of the radio
    std::string ssid, bssid;
    Radio radio;
    bool up = false;
    std::optional<Uplink> uplink;  // of an end point
    std::vector<Station> stations; // of an access point
};

std::vector<Radio> readRadios(sandbox::Database &database);

// In the order of Device.WiFi.SSID; those without a name that can be an interface's are left out.
std::vector<Interface> readInterfaces(sandbox::Database &database);

} // namespace device
