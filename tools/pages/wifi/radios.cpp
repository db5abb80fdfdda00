// SPDX-License-Identifier: MIT
// `wifi radios` and `wifi clients`: what the configuration layer alone tells.
#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/page.h"
#include "pages/wifi/instances.h"
#include "pages/wifi/pages.h"

#include <algorithm>
#include <iterator>

namespace pages::wifi {
namespace {

constexpr int kFapiToUi = 1; // direction of the library's converters

// Unless the gateway says that it is off.
bool isOn(const std::string &flag) {
    return flagOf(flag) != Value(false);
}

// On gateways of other makers, whose SSIDs have other numbers and no X_ZINTU_Active. Null where no access point of the
// radio counts its clients.
Value countedClientsOf(int radio) {
    const std::vector<Object> accessPoints =
        anyInstancesOf("Device.WiFi.AccessPoint", {{"SSIDReference"}, {"Enable"}, {"AssociatedDeviceNumberOfEntries"}});
    Value sum;
    for (const Object &ssid : anyInstancesOf("Device.WiFi.SSID", {{"Enable"}, {"X_ZINTU_Active"}, {"LowerLayers"}})) {
        const int number = radioOf(ssid) == radio ? accessPointOf(instanceOf(ssid.name), accessPoints) : 0;
        const auto accessPoint = std::find_if(accessPoints.begin(), accessPoints.end(), [&](const Object &one) {
            return number != 0 && instanceOf(one.name) == number;
        });
        const Value clients = accessPoint == accessPoints.end()
                                  ? Value()
                                  : numberOf(valueOf(*accessPoint, "AssociatedDeviceNumberOfEntries"));
        if (clients.isNumber()) {
            const bool counts = isOn(valueOf(ssid, "Enable")) && isOn(valueOf(ssid, "X_ZINTU_Active"));
            sum = (sum.isNumber() ? sum.whole() : 0) + (counts ? clients.whole() : 0);
        }
    }
    return sum;
}

// The library counts on radios 1 and 2, where each has eight SSIDs.
Value clientsOf(int radio) {
    try {
        if (radio == 1 || radio == 2) {
            return askEvery([&] { return GetAssociatedDeviceNumberOfEntries(radio); });
        }
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
    }
    return countedClientsOf(radio);
}

Value radioJson(const Object &radio) {
    const int number = instanceOf(radio.name);
    const std::string width = valueOf(radio, "OperatingChannelBandwidth");
    const std::string standards = valueOf(radio, "OperatingStandards");
    const std::string band = valueOf(radio, "OperatingFrequencyBand");
    Value json = Value::object();
    json["radio"] = number;
    json["interface"] = valueOf(radio, "Name");
    json["band"] = FapiToUi_Str(band.c_str(), Interface_FapiToUi_Table, std::size(Interface_FapiToUi_Table));
    json["enabled"] = flagOf(valueOf(radio, "Enable"));
    json["status"] = valueOf(radio, "Status");
    json["channel"] = numberOf(valueOf(radio, "Channel"));
    json["auto_channel"] = flagOf(valueOf(radio, "AutoChannelEnable"));
    json["bandwidth_mhz"] = typed("bandwidth", BandWidth_ConvStr(width.c_str(), kFapiToUi));
    json["standards"] = OperatingStandards_ConvStr(standards.c_str(), kFapiToUi);
    json["clients"] = clientsOf(number);
    return json;
}

Row radioRow(const Value &radio) {
    Row row = pages::rowOf(
        radio, {"radio", "interface", "band", "status", "channel", "bandwidth_mhz", "standards", "clients"});
    row[3].style = radio["status"] == "Up" ? Style::Good : radio["status"] == "" ? Style::Plain : Style::Bad;
    if (radio["enabled"] == false) {
        row[3].text = "off";
    }
    row[4].remark = radio["auto_channel"].flag() ? " (auto)" : "";
    row.push_back(cellOf(radio["auto_channel"]));
    return row;
}

} // namespace

Report radios() {
    Report result{.json = Value::object({{"radios", Value::list()}})};
    result.table.headings = {"RADIO", "INTERFACE", "BAND", "STATUS", "CHANNEL", "WIDTH MHZ", "STANDARDS", "CLIENTS"};
    result.table.furtherHeadings = {"AUTO"};
    const std::vector<Parameter> wanted = {{"Name"},
                                           {"OperatingFrequencyBand"},
                                           {"Enable"},
                                           {"Status"},
                                           {"Channel"},
                                           {"AutoChannelEnable"},
                                           {"OperatingChannelBandwidth"},
                                           {"OperatingStandards"}};
    for (const Object &radio : instancesOf("Device.WiFi.Radio", wanted)) {
        const Value json = radioJson(radio);
        result.table.rows.push_back(radioRow(json));
        result.json["radios"].push(json);
    }
    return result;
}

Report clients(int radio) {
    requireRadio(radio);
    const Value clients = clientsOf(radio);
    return {.json = Value::object({{"radio", radio}, {"clients", clients}}), .raw = readable(clients) + "\n"};
}

} // namespace pages::wifi
