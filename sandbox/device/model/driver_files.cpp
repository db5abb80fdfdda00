// SPDX-License-Identifier: MIT
#include "device/model/driver_files.h"

#include "device/model/channel_plan.h"

#include <algorithm>
#include <cstdio>

namespace device {
namespace {

constexpr int kAntennas = 4; // that the driver reports
constexpr int kAbsent = -128;

// How the antennas differ from the station's signal. The mean of a radio's antennas is the signal itself.
constexpr int kOffsets24GHz[] = {1, -1};
constexpr int kOffsets5GHz[] = {1, -2, 2, -1};

int antennaSignal(const Radio &radio, int signal, int antenna) {
    const bool few = radio.band == "2.4GHz";
    const auto fitted = static_cast<int>(few ? std::size(kOffsets24GHz) : std::size(kOffsets5GHz));
    if (signal >= 0 || antenna >= fitted) {
        return kAbsent;
    }
    return std::clamp(signal + (few ? kOffsets24GHz : kOffsets5GHz)[antenna], -127, -1);
}

void appendLine(std::string &text, const std::string &value, const std::string &description) {
    const size_t kWidth = 18;
    text += std::string(value.size() < kWidth ? kWidth - value.size() : 0, ' ');
    text += value + " : " + description + '\n';
}

} // namespace

std::vector<Station> peersOf(const Interface &interface, const std::vector<Neighbour> &heard) {
    if (!interface.uplink) {
        return interface.stations;
    }
    const auto upstream = std::find_if(heard.begin(), heard.end(), [&](const Neighbour &neighbour) {
        return !neighbour.ssid.empty() && neighbour.ssid == interface.uplink->ssid;
    });
    if (!interface.up || upstream == heard.end()) {
        return {};
    }
    const int signal = interface.uplink->signal;
    return {{upstream->bssid, signal < 0 ? signal : upstream->signal, kUsualNoise}};
}

std::string peerFlowStatus(const Radio &radio, const std::vector<Station> &peers) {
    std::string text;
    for (const Station &peer : peers) {
        appendLine(text, peer.mac, "STA MAC");
        for (int antenna = 0; antenna < kAntennas; ++antenna) {
            appendLine(text, std::to_string(antennaSignal(radio, peer.signal, antenna)),
                       "Short-term RSSI average per antenna " + std::to_string(antenna + 1) + ", dBm");
        }
        appendLine(text, std::to_string(peer.noise), "Noise, dBm");
    }
    return text;
}

std::string channelFigures(const Radio &radio) {
    if (!radio.enabled) {
        return "";
    }
    const std::string channel = std::to_string(radio.channel);
    return "width: " + std::to_string(radio.width) + " MHz\nprimary_channel: " + channel +
           "\nprimary_frequency: " + std::to_string(frequencyOf(radio, radio.channel)) + " MHz\n";
}

} // namespace device
