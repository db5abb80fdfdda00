// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/failure.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"
#include "pages/wifi/signal.h"

#include <iterator>

namespace pages::wifi {
namespace {

constexpr int32_t kWeakest = -127; // dBm; what lies below marks an antenna that is not there

Value decibels(int32_t rssi) {
    return rssi < kWeakest || rssi >= 0 ? Value() : Value(rssi);
}

Value jsonOf(const WifiStaEntry &station) {
    Value json = Value::object();
    json["mac"] = text(station.mac);
    json["rssi_dbm"] = decibels(station.rssiAverage);
    for (const int32_t rssi : station.rssi) {
        json["antennas_dbm"].push(decibels(rssi));
    }
    return json;
}

Row stationRow(const Value &station) {
    Row row = {cellOf(station["mac"]), signalCell(station["rssi_dbm"])};
    for (const Value &rssi : station["antennas_dbm"].items()) {
        row.push_back({readable(rssi)});
    }
    return row;
}

} // namespace

Report stations(const InterfaceName &interface, const std::string &mac) {
    findInterface(interface);
    WifiStaList list{};
    const DeviceTurn turn;
    ShellOutput output;
    const int count = GetStaInfo(interface.c_str(), mac.c_str(), &list);
    const std::string complaint = output.end();
    if (count == 0 && !complaint.empty()) {
        failOfShell("the driver tells no stations of " + interface.text(), complaint);
    }
    if (count == 0 && !mac.empty()) {
        throw Failure(Category::Absent, mac + " is not a station of " + interface.text());
    }
    Report result{.json = Value::object({{"interface", interface.text()}, {"stations", Value::list()}})};
    result.table.headings = {"STATION", "SIGNAL DBM", "ANT1 DBM", "ANT2 DBM", "ANT3 DBM", "ANT4 DBM"};
    for (int i = 0; i < count; ++i) {
        const Value station = jsonOf(list.entries[i]);
        result.table.rows.push_back(stationRow(station));
        result.json["stations"].push(station);
    }
    if (count == 0) {
        result.notes.push_back("no stations on " + interface.text());
    } else if (count == static_cast<int>(std::size(list.entries))) {
        result.notes.emplace_back("the list is full: stations beyond the 128th are left out");
    }
    return result;
}

} // namespace pages::wifi
