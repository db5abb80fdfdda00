// SPDX-License-Identifier: MIT
#include "wifi/object_path.h"

namespace wifi {
namespace {

constexpr char kTables[][25] = {"Device.WiFi.Radio.", "Device.WiFi.SSID.", "Device.WiFi.AccessPoint.",
                                "Device.WiFi.EndPoint."};

} // namespace

ObjectPath::ObjectPath(Table table, int instance, const char *rest)
    : BoundedText("%s%d%s", kTables[static_cast<uint8_t>(table)], instance, rest) {}

} // namespace wifi
