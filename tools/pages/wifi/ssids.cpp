// SPDX-License-Identifier: MIT
#include "pages/wifi/pages.h"

#include "caltofal.h"
#include "pages/page.h"
#include "pages/wifi/interface.h"

namespace cli::wifi {
namespace {

Json jsonOf(const Object &ssid) {
    const int radio = instanceOf(valueOf(ssid, "LowerLayers"));
    const auto isSet = [&](const char *name) { return ConvStrToBool(valueOf(ssid, name).c_str()) != 0; };
    Json json = {{"number", instanceOf(ssid.name)}};
    put(json, "interface", valueOf(ssid, "Name"));
    json["radio"] = radio == 0 ? Json() : Json(radio);
    put(json, "ssid", valueOf(ssid, "SSID"));
    put(json, "bssid", valueOf(ssid, "BSSID"));
    put(json, "network", valueOf(ssid, "X_ZINTU_NetworkType"));
    json["enabled"] = isSet("Enable");
    json["active"] = isSet("X_ZINTU_Active");
    return json;
}

std::vector<Cell> rowOf(const Json &ssid) {
    std::vector<Cell> row;
    for (const char *key : {"number", "interface", "radio", "ssid", "bssid", "network", "enabled", "active"}) {
        row.push_back({readable(ssid[key])});
    }
    return row;
}

Report run() {
    Report result{{{"ssids", Json::array()}}, {}, {}, {}};
    result.table.headings = {"NUMBER", "INTERFACE", "RADIO", "SSID", "BSSID", "NETWORK", "ENABLED", "ACTIVE"};
    const std::vector<Parameter> wanted = {{"Name", {}},          {"LowerLayers", {}},         {"SSID", {}},
                                           {"BSSID", {}},         {"X_ZINTU_NetworkType", {}}, {"Enable", {}},
                                           {"X_ZINTU_Active", {}}};
    for (const Object &ssid : get({{"Device.WiFi.SSID", wanted}}, Reading::Whole)) {
        const Json json = jsonOf(ssid);
        result.table.rows.push_back(rowOf(json));
        result.json["ssids"].push_back(json);
    }
    return result;
}

Run define(CLI::App & /*command*/) {
    return run;
}

} // namespace

const Noun kSsidsVerb = {"ssids", "All SSIDs, a line each, with their numbers and interfaces", "", define};

} // namespace cli::wifi
