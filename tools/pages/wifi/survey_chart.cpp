// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/page.h"
#include "pages/text.h"
#include "pages/wifi/chart.h"
#include "pages/wifi/instances.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"
#include "pages/wifi/survey.h"

#include <map>

namespace pages::wifi {
namespace {

constexpr int kToUi = 1; // direction of the library's converters

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
        const Value width = typed("", BandWidth_ConvStr(valueOf(radio, "OperatingChannelBandwidth").c_str(), kToUi));
        const ChartedNetwork own = {.channel = ConvInt(valueOf(radio, "Channel").c_str()),
                                    .width = width.isNumber() ? static_cast<int>(width.whole()) : 20,
                                    .side = ExtensionChannel_ConvStr(valueOf(radio, "ExtensionChannel").c_str(), kToUi),
                                    .dbm = {},
                                    .name = valueOf(radio, "Name")};
        if (own.channel > 0 && flagOf(valueOf(radio, "Enable")) != Value(false)) {
            radios.push_back(own);
        }
    }
    return radios;
}

// Whether 2.4 GHz, and whether other bands, were looked at.
struct Bands {
    bool low = false, high = false;

    void add(int channel) { (channel <= kLast24GHz ? low : high) = true; }
    [[nodiscard]] bool have(int channel) const { return channel <= kLast24GHz ? low : high; }
};

Bands bandsOf(const std::vector<InterfaceName> &interfaces) {
    Bands bands;
    for (const InterfaceName &interface : interfaces) {
        const std::string radio = "Device.WiFi.Radio." + std::to_string(findInterface(interface).radio);
        for (const Object &object : anyInstancesOf("Device.WiFi.Radio", {{"Channel"}})) {
            if (withoutDot(object.name) == radio) {
                bands.add(ConvInt(valueOf(object, "Channel").c_str()));
            }
        }
    }
    return bands;
}

// What several interfaces heard stands in a survey once for each: here once, as strong as the best of them heard it.
void addOnce(std::vector<ChartedNetwork> &networks, std::map<std::string, size_t> &places, const Value &json) {
    const std::string bssid = json["bssid"].text();
    const bool known = bssid.find_first_not_of("0:") != std::string::npos;
    const auto [place, isNew] = places.try_emplace(known ? bssid : std::to_string(places.size()), networks.size());
    const ChartedNetwork network = networkOf(json);
    if (isNew) {
        networks.push_back(network);
    } else if (network.dbm.whole() > networks[place->second].dbm.whole()) {
        networks[place->second] = network;
    }
}

void noteUnknownSides(const std::vector<ChartedNetwork> &networks, std::vector<std::string> &notes) {
    std::vector<std::string> names;
    for (const ChartedNetwork &network : networks) {
        if (isSideUnknown(network)) {
            names.push_back(network.name);
        }
    }
    if (!names.empty()) {
        notes.push_back("drawn as 20 MHz, as the secondary channel may lie on either side: " + joined(names));
    }
}

} // namespace

Report surveyChart(const std::optional<InterfaceName> &interface) {
    Report result = survey(interface, "");
    const Bands bands = bandsOf(interface ? std::vector{*interface} : interfacesWithResult());
    std::vector<ChartedNetwork> networks = ownRadios();
    std::erase_if(networks, [&](const ChartedNetwork &own) { return !bands.have(own.channel); });
    std::map<std::string, size_t> places;
    for (const Value &network : result.json["networks"].items()) {
        addOnce(networks, places, network);
    }
    result.table = {};
    noteUnknownSides(networks, result.notes);
    result.chart = chartOf(networks);
    return result;
}

} // namespace pages::wifi
