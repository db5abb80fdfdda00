// SPDX-License-Identifier: MIT
// The tables of the Wi-Fi model, on gateways of any maker.
#pragma once

#include "pages/layer/query.h"

#include <string>
#include <vector>

namespace pages::wifi {

// The instances of a table with those of the named parameters that they have, without names with all. What lies below
// an instance is left out, even where it has parameters of these names. Throws Failure where there is no such table.
std::vector<Object> instancesOf(const std::string &table, const std::vector<Parameter> &names);

// The same; none where there is no such table.
std::vector<Object> anyInstancesOf(const std::string &table, const std::vector<Parameter> &names);

// Throws Failure, with the numbers that there are, where Device.WiFi.SSID or Device.WiFi.Radio lacks an instance.
void requireSsid(int ssid);
void requireRadio(int radio);

// The numbers of an SSID's access point and of the radio that it is on; 0 where the gateway has none.
int accessPointOf(int ssid);
int accessPointOf(int ssid, const std::vector<Object> &accessPoints); // with their SSIDReference
inline int radioOf(const Object &ssid) {
    return instanceOf(valueOf(ssid, "LowerLayers"));
}

} // namespace pages::wifi
