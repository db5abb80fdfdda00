// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/page.h"
#include "pages/wifi/instances.h"
#include "pages/wifi/pages.h"

namespace pages::wifi {
namespace {

Value ssidJson(const Object &ssid) {
    const int radio = radioOf(ssid);
    Value json = Value::object({{"number", instanceOf(ssid.name)}});
    json["interface"] = valueOf(ssid, "Name");
    json["radio"] = radio == 0 ? Value() : Value(radio);
    json["ssid"] = valueOf(ssid, "SSID");
    json["bssid"] = valueOf(ssid, "BSSID");
    json["network"] = valueOf(ssid, "X_ZINTU_NetworkType");
    json["enabled"] = flagOf(valueOf(ssid, "Enable"));
    json["active"] = flagOf(valueOf(ssid, "X_ZINTU_Active"));
    return json;
}

} // namespace

Report ssids() {
    Report result{.json = Value::object({{"ssids", Value::list()}})};
    result.table.headings = {"NUMBER", "INTERFACE", "RADIO", "SSID", "BSSID", "NETWORK", "ENABLED", "ACTIVE"};
    const std::vector<Parameter> wanted = {{"Name"},   {"LowerLayers"},   {"SSID"}, {"BSSID"}, {"X_ZINTU_NetworkType"},
                                           {"Enable"}, {"X_ZINTU_Active"}};
    for (const Object &ssid : instancesOf("Device.WiFi.SSID", wanted)) {
        const Value json = ssidJson(ssid);
        result.table.rows.push_back(
            pages::rowOf(json, {"number", "interface", "radio", "ssid", "bssid", "network", "enabled", "active"}));
        result.json["ssids"].push(json);
    }
    return result;
}

} // namespace pages::wifi
