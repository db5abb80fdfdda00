// SPDX-License-Identifier: MIT
#include "pages/wifi/interface.h"

#include "pages/failure.h"
#include "pages/similar.h"
#include "pages/wifi/instances.h"

namespace pages::wifi {

Interface findInterface(const InterfaceName &name) {
    std::vector<std::string> names;
    for (const Object &ssid : instancesOf("Device.WiFi.SSID", {{"Name"}, {"LowerLayers"}})) {
        names.push_back(valueOf(ssid, "Name"));
        if (names.back() == name.text()) {
            return {name.text(), ssid.name, radioOf(ssid)};
        }
    }
    throw Failure(Category::Absent,
                  name.text() + ": no SSID of the gateway is on that interface" + didYouMean(name.text(), names),
                  "Device.WiFi.SSID");
}

} // namespace pages::wifi
