// SPDX-License-Identifier: MIT
#include "wifi/driver/station_lines.h"

#include "frame/text.h"
#include "wifi/convert/words.h"
#include "wifi/cut_copy.h"

#include <cstring>
#include <iterator>

using namespace frame;

namespace wifi {
namespace {

constexpr int kWeakestRssi = -127;

struct Line {
    const char *value;
    const char *description;
};

// As "%s : %s" splits it. The description is not cut at its end: only its start is looked at.
Line split(char *line) {
    char *value = skipSpace(line);
    char *end = skipWord(value);
    char *colon = skipSpace(end);
    const char *description = *colon == ':' ? skipSpace(colon + 1) : "";
    *end = '\0';
    return {value, description};
}

// The mean of the antennas that gave a value; 0 when none did.
int averageRssi(const WifiStaEntry &station) {
    int sum = 0;
    int count = 0;
    for (const int rssi : station.rssi) {
        if (rssi >= kWeakestRssi && rssi < 0) {
            sum += rssi;
            ++count;
        }
    }
    return count > 0 ? sum / count : 0;
}

} // namespace

void StationParser::addLine(char *line) {
    const Line parts = split(line);
    if (!station_) {
        addStation(parts.value);
    } else if (beginsWith(parts.description, "Short-term")) {
        addAntenna(number(parts.value));
    } else {
        station_ = nullptr; // the line that ends a station is not looked at again
    }
}

void StationParser::addStation(const char *mac) {
    if (list_.count >= std::size(list_.entries) || isValidMacAddress(mac) == 0 || !isWanted(mac)) {
        return;
    }
    station_ = &list_.entries[list_.count++];
    antenna_ = 0;
    copyCut(station_->mac, mac);
}

void StationParser::addAntenna(int rssi) {
    station_->rssi[antenna_++] = rssi;
    station_->rssiAverage = averageRssi(*station_);
    if (antenna_ == static_cast<int>(std::size(station_->rssi))) {
        station_ = nullptr;
    }
}

bool StationParser::isWanted(const char *mac) const {
    return !filter_ || my_strnicmp(mac, filter_, static_cast<int>(strlen(filter_))) == 0;
}

} // namespace wifi
