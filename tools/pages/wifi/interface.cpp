// SPDX-License-Identifier: MIT
#include "pages/wifi/interface.h"

#include "pages/failure.h"
#include "pages/wifi/instances.h"

namespace pages::wifi {

Interface findInterface(const InterfaceName &name) {
    for (const Object &ssid : instancesOf("Device.WiFi.SSID", {{"Name"}, {"LowerLayers"}})) {
        if (valueOf(ssid, "Name") == name.text()) {
            return {name.text(), ssid.name, radioOf(ssid)};
        }
    }
    throw Failure(Category::Absent, name.text() + ": no SSID of the gateway is on that interface", "Device.WiFi.SSID");
}

} // namespace pages::wifi
