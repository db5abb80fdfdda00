// SPDX-License-Identifier: MIT
#include "device/model/wifi.h"

#include "device/model/rows.h"
#include "device/model/words.h"
#include "value/value_list.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace device {
namespace {

using Rows = std::vector<Row>;

int widthOf(const Row &radio, bool wide) {
    if (const int fixed = leadingNumber(radio.text("OperatingChannelBandwidth")); fixed > 0) {
        return fixed;
    }
    return wide ? 80 : 20; // what "Auto" settles for
}

// The device's own names say their number; others' are counted by their radios.
int phyOf(const std::string &interface, const Radio &radio) {
    constexpr std::string_view kOwn = "wlan";
    int number = 0;
    const char *const end = interface.data() + interface.size();
    const bool own =
        interface.starts_with(kOwn) && std::from_chars(interface.data() + kOwn.size(), end, number).ec == std::errc();
    return own ? number : radio.place;
}

Radio radioOf(const Row &row) {
    Radio radio;
    radio.path = row.path;
    radio.enabled = row.flag("Enable", true);
    radio.channel = row.number("Channel");
    radio.band = bandOf(row.text("OperatingFrequencyBand"), radio.channel);
    radio.width = widthOf(row, radio.band == "5GHz");
    const std::string widths = row.text("SupportedOperatingChannelBandwidths");
    for (const std::string_view width : sandbox::listItems(widths)) {
        radio.widths.emplace_back(width);
    }
    radio.channels = sandbox::channelsOf(row.text("PossibleChannels"));
    return radio;
}

// A path with a final dot, however it was written.
std::string dotted(std::string path) {
    if (!path.empty() && path.back() != '.') {
        path += '.';
    }
    return path;
}

const Row *findReferring(const Rows &rows, const std::string &ssidPath) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const Row &row) { return dotted(row.text("SSIDReference")) == ssidPath; });
    return found == rows.end() ? nullptr : &*found;
}

std::vector<Station> stationsOf(sandbox::Database &database, const Row &accessPoint) {
    std::vector<Station> stations;
    for (const Row &row : rowsOf(database, accessPoint.path + "AssociatedDevice.")) {
        if (row.flag("Active", true) && !row.text("MACAddress").empty()) {
            const int noise = row.has("Noise") ? row.number("Noise") : kUsualNoise;
            stations.push_back({row.text("MACAddress"), row.number("SignalStrength"), noise});
        }
    }
    return stations;
}

// The profile that the end point refers to, else its first one.
Uplink uplinkOf(sandbox::Database &database, const Row &endPoint) {
    Uplink uplink;
    uplink.enabled = endPoint.flag("Enable", true);
    std::string profile = endPoint.text("ProfileReference");
    if (profile.empty()) {
        profile = endPoint.path + "Profile.";
    }
    if (const Rows profiles = rowsOf(database, profile); !profiles.empty()) {
        uplink.ssid = profiles.front().text("SSID");
    }
    if (const Rows figures = rowsOf(database, endPoint.path + "Stats."); !figures.empty()) {
        uplink.signal = figures.front().number("SignalStrength");
    }
    return uplink;
}

bool isInterfaceName(const std::string &name) {
    return !name.empty() && name.front() != '.' && std::all_of(name.begin(), name.end(), [](unsigned char c) {
        return std::isalnum(c) != 0 || c == '.' || c == '_' || c == '-';
    });
}

} // namespace

std::vector<Radio> readRadios(sandbox::Database &database) {
    std::vector<Radio> radios;
    for (const Row &row : rowsOf(database, "Device.WiFi.Radio.")) {
        radios.push_back(radioOf(row));
        radios.back().place = static_cast<int>(radios.size()) - 1;
    }
    return radios;
}

std::vector<Interface> readInterfaces(sandbox::Database &database) {
    const std::vector<Radio> radios = readRadios(database);
    const Rows accessPoints = rowsOf(database, "Device.WiFi.AccessPoint.");
    const Rows endPoints = rowsOf(database, "Device.WiFi.EndPoint.");
    std::vector<Interface> interfaces;
    for (const Row &row : rowsOf(database, "Device.WiFi.SSID.")) {
        const auto radio = std::find_if(radios.begin(), radios.end(), [&](const Radio &candidate) {
            return candidate.path == dotted(row.text("LowerLayers"));
        });
        if (!isInterfaceName(row.text("Name")) || radio == radios.end()) {
            continue;
        }
        Interface interface;
        interface.name = row.text("Name");
        interface.phy = phyOf(interface.name, *radio);
        interface.ssid = row.text("SSID");
        interface.bssid = row.text("BSSID");
        interface.radio = *radio;
        if (const Row *endPoint = findReferring(endPoints, row.path)) {
            interface.uplink = uplinkOf(database, *endPoint);
            interface.up = radio->enabled && interface.uplink->enabled;
        } else if (const Row *accessPoint = findReferring(accessPoints, row.path)) {
            interface.up = radio->enabled && row.flag("Enable", true) && accessPoint->flag("Enable", true);
            interface.stations = interface.up ? stationsOf(database, *accessPoint) : std::vector<Station>();
        }
        interfaces.push_back(std::move(interface));
    }
    return interfaces;
}

} // namespace device
