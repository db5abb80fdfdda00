// SPDX-License-Identifier: MIT
// `wifi radios` and `wifi clients`: what the configuration layer alone tells.
#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/page.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"

#include <iterator>

namespace pages::wifi {
namespace {

constexpr int kFapiToUi = 1; // direction of the library's converters

// Of radios 1 and 2; others the library does not count.
Value clientsOf(int radio) {
    if (radio != 1 && radio != 2) {
        return {};
    }
    return askEvery([&] { return GetAssociatedDeviceNumberOfEntries(radio); });
}

// Null where the gateway does not count them.
Value knownClientsOf(int radio) {
    try {
        return clientsOf(radio);
    } catch (const Failure &failure) {
        if (failure.category() == Category::Absent) {
            return {};
        }
        throw;
    }
}

Value jsonOf(const Object &radio) {
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
    json["clients"] = knownClientsOf(number);
    return json;
}

Row rowOf(const Value &radio) {
    Row row = pages::rowOf(
        radio, {"radio", "interface", "band", "status", "channel", "bandwidth_mhz", "standards", "clients"});
    row[3].style = radio["status"] == "Up" ? Style::Good : radio["status"] == "" ? Style::Plain : Style::Bad;
    if (radio["enabled"] == false) {
        row[3].text = "off";
    }
    row[4].text += radio["auto_channel"].flag() ? " (auto)" : "";
    return row;
}

} // namespace

Report radios() {
    Report result{.json = Value::object({{"radios", Value::list()}})};
    result.table.headings = {"RADIO", "INTERFACE", "BAND", "STATUS", "CHANNEL", "WIDTH MHZ", "STANDARDS", "CLIENTS"};
    const std::vector<Parameter> wanted = {{"Name"},
                                           {"OperatingFrequencyBand"},
                                           {"Enable"},
                                           {"Status"},
                                           {"Channel"},
                                           {"AutoChannelEnable"},
                                           {"OperatingChannelBandwidth"},
                                           {"OperatingStandards"}};
    for (const Object &radio : get({{"Device.WiFi.Radio", wanted}}, Reading::Whole)) {
        const Value json = jsonOf(radio);
        result.table.rows.push_back(rowOf(json));
        result.json["radios"].push(json);
    }
    return result;
}

Report clients(int radio) {
    const Value clients = clientsOf(radio);
    return {.json = Value::object({{"radio", radio}, {"clients", clients}}), .raw = readable(clients) + "\n"};
}

} // namespace pages::wifi
