// SPDX-License-Identifier: MIT
#include "pages/wifi/interface.h"

#include "pages/failure.h"

namespace pages::wifi {

Interface findInterface(const InterfaceName &name) {
    for (const Object &ssid : get({{"Device.WiFi.SSID", {{"Name"}, {"LowerLayers"}}}}, Reading::Whole)) {
        if (valueOf(ssid, "Name") == name.text()) {
            return {name.text(), ssid.name, instanceOf(valueOf(ssid, "LowerLayers"))};
        }
    }
    throw Failure(Category::Absent, name.text() + ": no SSID of the gateway is on that interface", "Device.WiFi.SSID");
}

} // namespace pages::wifi
