// SPDX-License-Identifier: MIT
// Interfaces, SSIDs and numbers as they are typed, checked before any of them reaches a shell.
#pragma once

#include "pages/layer/query.h"

#include <string>

namespace cli {

// A name that the library may put into a shell's command line as it is. Throws Usage.
const std::string &checkedInterface(const std::string &name);

// An SSID has 32 bytes at most. Throws Usage.
const std::string &checkedSsid(const std::string &ssid);

// A decimal number, such as a radio's or an SSID's. Throws Usage, naming `what`.
int checkedNumber(const std::string &text, const char *what, int least, int most);

// A MAC address, its pairs of digits joined by colons, dashes or nothing, with colons. Throws Usage.
std::string checkedMac(const std::string &text);

// An instance number.
int checkedInstance(const std::string &text, const char *what);

// A wireless interface by the gateway's configuration.
struct Interface {
    std::string name;
    std::string ssidObject; // such as "Device.WiFi.SSID.9"
    int radio = 0;          // 0: the configuration does not tell
};

// Throws Failure when the gateway has no SSID on an interface of that name.
Interface findInterface(const std::string &name);

// The value of a parameter of an answer; "" when it is not there.
std::string valueOf(const Object &object, const std::string &parameter);

// "Device.WiFi.Radio.2." -> 2; 0 when the path has no number at its end.
int instanceOf(const std::string &path);

} // namespace cli
