// SPDX-License-Identifier: MIT
#include "device/model/diagnostic_results.h"

#include "device/model/rows.h"
#include "device/model/words.h"
#include "value/value_list.h"

#include <algorithm>
#include <iterator>

namespace device {
namespace {

constexpr const char *kTable = "Device.WiFi.NeighboringWiFiDiagnostic.Result.";
constexpr const char *kUnknown = "unknown";
constexpr size_t kSsidMax = 32;
constexpr size_t kColumnMax = 20; // a survey's line has at most 127 bytes

struct Word {
    const char *standard, *survey;
};
constexpr Word kSecurity[] = {
    {"", kUnknown}, {"None", "NONE"}, {"WPA", "WPA-PSK"}, {"WPA-WPA2", "WPA2/WPA-PSK"}, {"WPA2", "WPA2-PSK"}};

// A column holds no tab and no line end.
std::string column(std::string text, size_t most = kColumnMax) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' '; }, '?');
    return text.substr(0, most);
}

std::string securityOf(const Row &row) {
    const std::string &mode = row.text("SecurityModeEnabled");
    const auto *word =
        std::find_if(std::begin(kSecurity), std::end(kSecurity), [&](const Word &one) { return one.standard == mode; });
    return word == std::end(kSecurity) ? column(mode) : word->survey;
}

std::string joined(const std::string &list) {
    std::string text;
    for (const std::string_view part : sandbox::listItems(list)) {
        text += (text.empty() ? "" : "+") + std::string(part);
    }
    return column(text);
}

std::string encryptionOf(const Row &row, const std::string &security) {
    const std::string &mode = row.text("EncryptionMode");
    if (security == "NONE" || security == "WEP") {
        return security;
    }
    return mode.empty() || mode == "None" ? kUnknown : joined(mode);
}

std::string standardsOf(const Row &row) {
    const std::string &own = row.text("OperatingStandards");
    const std::string standards = joined(own.empty() ? row.text("SupportedStandards") : own);
    return standards.empty() ? kUnknown : column("802.11" + standards);
}

int widthOf(const Row &row) {
    const int width = leadingNumber(row.text("OperatingChannelBandwidth"));
    return width > 0 ? width : 20;
}

Neighbour neighbourOf(const Row &row) {
    Neighbour neighbour;
    neighbour.ssid = column(row.text("SSID"), kSsidMax);
    neighbour.bssid = row.has("BSSID") ? column(row.text("BSSID")) : "00:00:00:00:00:00";
    neighbour.signal = row.number("SignalStrength");
    neighbour.band = bandOf(row.text("OperatingFrequencyBand"), row.number("Channel"));
    const std::string security = securityOf(row);
    for (const std::string &text :
         {neighbour.ssid, std::to_string(row.number("Channel")), std::to_string(neighbour.signal), security,
          encryptionOf(row, security), neighbour.bssid, std::to_string(widthOf(row)), standardsOf(row),
          std::string("auto")}) {
        neighbour.line += text + '\t';
    }
    neighbour.line += '0'; // not known to be of this gateway's make
    return neighbour;
}

} // namespace

std::vector<Neighbour> diagnosticResults(sandbox::Database &database) {
    std::vector<Neighbour> neighbours;
    for (const Row &row : rowsOf(database, kTable)) {
        if (row.has("SSID")) {
            neighbours.push_back(neighbourOf(row));
        }
    }
    return neighbours;
}

} // namespace device
