// SPDX-License-Identifier: MIT
#include "device/model/wifi.h"

#include "device/model/rows.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace device {
namespace {

using Rows = std::vector<Row>;

std::vector<std::string> commaSeparated(const std::string &text) {
    std::vector<std::string> parts;
    for (size_t start = 0; start < text.size();) {
        const size_t end = std::min(text.find(',', start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

// The leading number of a text; 0 when there is none.
int leadingNumber(const std::string &text) {
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

int widthOf(const Row &radio, bool wide) {
    if (const int fixed = leadingNumber(radio.text("OperatingChannelBandwidth")); fixed > 0) {
        return fixed;
    }
    return wide ? 80 : 20; // what "Auto" settles for
}

Radio radioOf(const Row &row) {
    Radio radio;
    radio.path = row.path;
    radio.enabled = row.flag("Enable");
    radio.band = row.text("OperatingFrequencyBand");
    radio.channel = row.number("Channel");
    radio.width = widthOf(row, radio.band == "5GHz");
    radio.widths = commaSeparated(row.text("SupportedOperatingChannelBandwidths"));
    for (const std::string &channel : commaSeparated(row.text("PossibleChannels"))) {
        radio.channels.push_back(leadingNumber(channel));
    }
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
        if (row.flag("Active") && !row.text("MACAddress").empty()) {
            stations.push_back({row.text("MACAddress"), row.number("SignalStrength"), row.number("Noise")});
        }
    }
    return stations;
}

// The profile that the end point refers to, else its first one.
Uplink uplinkOf(sandbox::Database &database, const Row &endPoint) {
    Uplink uplink;
    uplink.enabled = endPoint.flag("Enable");
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
        Interface interface {
            row.text("Name"), row.text("SSID"), row.text("BSSID"), *radio, false, {}, {}
        };
        if (const Row *endPoint = findReferring(endPoints, row.path)) {
            interface.uplink = uplinkOf(database, *endPoint);
            interface.up = radio->enabled && interface.uplink->enabled;
        } else if (const Row *accessPoint = findReferring(accessPoints, row.path)) {
            interface.up = radio->enabled && row.flag("Enable") && accessPoint->flag("Enable");
            interface.stations = interface.up ? stationsOf(database, *accessPoint) : std::vector<Station>();
        }
        interfaces.push_back(std::move(interface));
    }
    return interfaces;
}

} // namespace device
