// SPDX-License-Identifier: MIT
#include "wifi/object_path.h"

namespace wifi {

ObjectPath::ObjectPath(Table table, int instance, const char *rest) {
    constexpr char kTables[][25] = {"Device.WiFi.Radio.", "Device.WiFi.SSID.", "Device.WiFi.AccessPoint.",
                                    "Device.WiFi.EndPoint."};
    append(kTables[static_cast<uint8_t>(table)]);
    append(instance);
    append(rest);
}

} // namespace wifi
