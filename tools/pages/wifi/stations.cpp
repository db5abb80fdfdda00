// SPDX-License-Identifier: MIT
#include "pages/wifi/pages.h"

#include "caltofal.h"
#include "caltofal/device.h"
#include "pages/failure.h"
#include "pages/objects/words.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/interface.h"

#include <iterator>
#include <memory>

namespace cli::wifi {
namespace {

struct Arguments {
    std::string interface, mac;
};

constexpr int32_t kWeakest = -127; // dBm; what lies below marks an antenna that is not there

Json decibels(int32_t rssi) {
    return rssi < kWeakest || rssi >= 0 ? Json() : Json(rssi);
}

Json jsonOf(const WifiStaEntry &station) {
    Json json = Json::object();
    put(json, "mac", text(station.mac));
    json["rssi_dbm"] = decibels(station.rssiAverage);
    for (const int32_t rssi : station.rssi) {
        json["antennas_dbm"].push_back(decibels(rssi));
    }
    return json;
}

std::vector<Cell> rowOf(const Json &station) {
    std::vector<Cell> row = {{readable(station["mac"])}, {readable(station["rssi_dbm"])}};
    for (const Json &rssi : station["antennas_dbm"]) {
        row.push_back({readable(rssi)});
    }
    return row;
}

Report run(const Arguments &arguments) {
    checkedInterface(arguments.interface);
    const std::string mac = arguments.mac.empty() ? "" : checkedMac(arguments.mac);
    needDevice();
    findInterface(arguments.interface);
    WifiStaList list{};
    ShellOutput output;
    const int count = GetStaInfo(arguments.interface.c_str(), mac.c_str(), &list);
    const std::string complaint = output.end();
    if (count == 0 && !complaint.empty()) {
        failOfShell("the driver tells no stations of " + arguments.interface, complaint);
    }
    if (count == 0 && !mac.empty()) {
        throw Failure(Exit::Absent, mac + " is no station of " + arguments.interface);
    }
    Report result{{{"interface", arguments.interface}, {"stations", Json::array()}}, {}, {}, {}};
    result.table.headings = {"STATION", "DBM", "ANT1", "ANT2", "ANT3", "ANT4"};
    for (int i = 0; i < count; ++i) {
        const Json station = jsonOf(list.entries[i]);
        result.table.rows.push_back(rowOf(station));
        result.json["stations"].push_back(station);
    }
    if (count == 0) {
        result.notes.push_back("no stations on " + arguments.interface);
    } else if (count == static_cast<int>(std::size(list.entries))) {
        result.notes.emplace_back("the list is full: stations beyond the 128th are left out");
    }
    return result;
}

Run define(CLI::App &command) {
    const auto arguments = std::make_shared<Arguments>();
    addArgument(command, "INTERFACE", arguments->interface, "An access point's interface, such as wlan0");
    addOption(command, "--mac", arguments->mac, "MAC", "Only that station");
    return [arguments] { return run(*arguments); };
}

} // namespace

const Noun kStationsVerb = {"stations", "The associated stations of an interface, with their signal",
                            "wlan2\nwlan2 --mac 00:00:5e:00:53:10", define};

} // namespace cli::wifi
