// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/page.h"
#include "pages/wifi/chart.h"
#include "pages/wifi/instances.h"
#include "pages/wifi/pages.h"

namespace pages::wifi {
namespace {

constexpr int kFapiToUi = 1; // direction of the library's converters

ChartedNetwork networkOf(const Value &json) {
    return {.channel = static_cast<int>(json["channel"].whole()),
            .width = static_cast<int>(json["bandwidth_mhz"].whole()),
            .side = json["secondary_side"].text(),
            .dbm = json["rssi_dbm"],
            .name = json["ssid"].text()};
}

// The radios that are on, by their configuration.
std::vector<ChartedNetwork> ownRadios() {
    std::vector<ChartedNetwork> radios;
    const std::vector<Parameter> wanted = {
        {"Name"}, {"Enable"}, {"Channel"}, {"OperatingChannelBandwidth"}, {"ExtensionChannel"}};
    for (const Object &radio : instancesOf("Device.WiFi.Radio", wanted)) {
        const Value width =
            typed("", BandWidth_ConvStr(valueOf(radio, "OperatingChannelBandwidth").c_str(), kFapiToUi));
        const ChartedNetwork own = {.channel = ConvInt(valueOf(radio, "Channel").c_str()),
                                    .width = width.isNumber() ? static_cast<int>(width.whole()) : 20,
                                    .side =
                                        ExtensionChannel_ConvStr(valueOf(radio, "ExtensionChannel").c_str(), kFapiToUi),
                                    .dbm = {},
                                    .name = valueOf(radio, "Name")};
        if (own.channel > 0 && flagOf(valueOf(radio, "Enable")) != Value(false)) {
            radios.push_back(own);
        }
    }
    return radios;
}

} // namespace

Report surveyChart(const std::optional<InterfaceName> &interface) {
    Report result = survey(interface, "");
    std::vector<ChartedNetwork> networks = ownRadios();
    for (const Value &network : result.json["networks"].items()) {
        networks.push_back(networkOf(network));
    }
    result.table = {};
    result.chart = chartOf(networks);
    return result;
}

} // namespace pages::wifi
