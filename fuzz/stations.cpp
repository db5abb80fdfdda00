// SPDX-License-Identifier: MIT
// The driver's list of stations.
#include "lines.h"
#include "wifi/driver/station_lines.h"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    fuzz::Bytes bytes(data, size);
    fuzz::Text filter(bytes.text(20));
    WifiStaList list = {};
    wifi::StationParser parser(isValidMacAddress(filter.get()) ? filter.get() : nullptr, list);
    fuzz::eachLine(bytes.rest(), [&](char *line) { parser.addLine(line); });
    fuzz::require(list.count <= 128, "a wrong station count");
    for (uint32_t i = 0; i < list.count; ++i) {
        const WifiStaEntry &station = list.entries[i];
        fuzz::require(strnlen(station.mac, 128) < 127, "an address of more than 126 characters");
        fuzz::require(station.rssiAverage <= 0 && station.rssiAverage >= -127, "a mean out of range");
    }
    return 0;
}
