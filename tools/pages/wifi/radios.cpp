// SPDX-License-Identifier: MIT
// `wifi radios` and `wifi clients`: what the configuration layer alone tells.
#include "pages/wifi/pages.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/objects/words.h"
#include "pages/page.h"
#include "pages/wifi/interface.h"

#include <iterator>
#include <memory>

namespace cli::wifi {
namespace {

constexpr int kFapiToUi = 1;

// Of radios 1 and 2; others the library does not count.
Json clientsOf(int radio) {
    if (radio != 1 && radio != 2) {
        return {};
    }
    return askEvery([&] { return GetAssociatedDeviceNumberOfEntries(radio); });
}

Json jsonOf(const Object &radio) {
    const int number = instanceOf(radio.name);
    const std::string width = valueOf(radio, "OperatingChannelBandwidth");
    const std::string standards = valueOf(radio, "OperatingStandards");
    const std::string band = valueOf(radio, "OperatingFrequencyBand");
    Json json = Json::object();
    json["radio"] = number;
    put(json, "interface", valueOf(radio, "Name"));
    put(json, "band", FapiToUi_Str(band.c_str(), Interface_FapiToUi_Table, std::size(Interface_FapiToUi_Table)));
    json["enabled"] = ConvStrToBool(valueOf(radio, "Enable").c_str()) != 0;
    put(json, "status", valueOf(radio, "Status"));
    json["channel"] = ConvInt(valueOf(radio, "Channel").c_str());
    json["auto_channel"] = ConvStrToBool(valueOf(radio, "AutoChannelEnable").c_str()) != 0;
    json["bandwidth_mhz"] = typed("bandwidth", BandWidth_ConvStr(width.c_str(), kFapiToUi));
    put(json, "standards", OperatingStandards_ConvStr(standards.c_str(), kFapiToUi));
    json["clients"] = clientsOf(number);
    return json;
}

std::vector<Cell> rowOf(const Json &radio) {
    const auto cell = [&](const char *key) { return Cell{readable(radio[key])}; };
    const Style status = radio["status"] == "Up" ? Style::Good : Style::Bad;
    return {cell("radio"),
            cell("interface"),
            cell("band"),
            {radio["enabled"] == true ? readable(radio["status"]) : "off", status},
            {readable(radio["channel"]) + (radio["auto_channel"] == true ? " (auto)" : "")},
            cell("bandwidth_mhz"),
            cell("standards"),
            cell("clients")};
}

Report runRadios() {
    Report result{{{"radios", Json::array()}}, {}, {}, {}};
    result.table.headings = {"RADIO", "INTERFACE", "BAND", "STATUS", "CHANNEL", "MHZ", "STANDARDS", "CLIENTS"};
    const std::vector<Parameter> wanted = {{"Name", {}},
                                           {"OperatingFrequencyBand", {}},
                                           {"Enable", {}},
                                           {"Status", {}},
                                           {"Channel", {}},
                                           {"AutoChannelEnable", {}},
                                           {"OperatingChannelBandwidth", {}},
                                           {"OperatingStandards", {}}};
    for (const Object &radio : get({{"Device.WiFi.Radio", wanted}}, Reading::Whole)) {
        const Json json = jsonOf(radio);
        result.table.rows.push_back(rowOf(json));
        result.json["radios"].push_back(json);
    }
    return result;
}

Report runClients(const std::string &word) {
    const int radio = checkedNumber(word, "radio", 1, 2);
    const Json clients = clientsOf(radio);
    return {{{"radio", radio}, {"clients", clients}}, {}, clients.dump() + "\n", {}};
}

Run defineRadios(CLI::App & /*command*/) {
    return runRadios;
}

Run defineClients(CLI::App &command) {
    const auto radio = std::make_shared<std::string>();
    addArgument(command, "RADIO", *radio, "1 or 2");
    return [radio] { return runClients(*radio); };
}

} // namespace

const Noun kRadiosVerb = {"radios", "All radios, a line each", "", defineRadios};

const Noun kClientsVerb = {"clients", "The number of clients of a radio's active SSIDs", "1", defineClients};

} // namespace cli::wifi
