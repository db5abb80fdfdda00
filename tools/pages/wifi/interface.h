// SPDX-License-Identifier: MIT
// A wireless interface by the gateway's configuration.
#pragma once

#include "pages/checked.h"

namespace pages::wifi {

struct Interface {
    std::string name;
    std::string ssidObject; // such as "Device.WiFi.SSID.9"
    int radio = 0;          // 0: the configuration does not tell
};

// Throws Failure when the gateway has no SSID on an interface of that name.
Interface findInterface(const InterfaceName &name);

} // namespace pages::wifi
