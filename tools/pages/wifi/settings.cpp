// SPDX-License-Identifier: MIT
// `wifi ssid` and `wifi radio`, and the snapshots behind them.
#include "pages/wifi/settings.h"

#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/page.h"
#include "pages/secret.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"

#include <algorithm>
#include <iterator>

namespace pages::wifi {
namespace {

using Convert = const char *(*)(const char *text, int direction);

const char *convertSecurity(const char *text, int direction) {
    constexpr int kRows = std::size(SecurityType_FapiToUi_Table);
    return direction == 1 ? FapiToUi_Str(text, SecurityType_FapiToUi_Table, kRows)
                          : UiToFapi_Str(text, SecurityType_FapiToUi_Table, kRows);
}

// The library has these in no table.
constexpr PairRow kPowerWords[] = {{"100", "high"}, {"50", "medium"}, {"25", "low"}};

struct Words {
    std::string_view parameter;
    Convert convert;
    std::span<const PairRow> pairs; // all words that there are
};

const Words kConverters[] = {
    {"Dot11nProtection", Dot11nProtect_ConvStr, Dot11nProtect_FapiToUi_Table},
    {"ExtensionChannel", ExtensionChannel_ConvStr, SideBand_FapiToUi_Table},
    {"GuardInterval", ShortGuardInterval_ConvStr, ShortGuardInterval_FapiToUi_Table},
    {"ModeEnabled", convertSecurity, SecurityType_FapiToUi_Table},
    {"OperatingChannelBandwidth", BandWidth_ConvStr, BandWidth_FapiToUi_Table},
    {"OperatingStandards", OperatingStandards_ConvStr, WireLessMode_FapiToUi_Table},
    {"TransmitPower", TransmitPower_ConvStr, kPowerWords},
    {"VhtGuardInterval", VhtShortGuardInterval_ConvStr, VhtShortGuardInterval_FapiToUi_Table},
    {"X_ZINTU_WMMOption", WMMOption_ConvStr, WMM_Option_FapiToUi_Table},
};

const Words *converterOf(const std::string &parameter) {
    const Words *const found = std::find_if(std::begin(kConverters), std::end(kConverters),
                                            [&](const Words &row) { return row.parameter == parameter; });
    return found == std::end(kConverters) ? nullptr : found;
}

// The library passes unknown words on, or takes them for its first one.
void checkWord(const Words &row, const std::string &word) {
    std::string words;
    for (const PairRow &pair : row.pairs) {
        const std::string known = text(pair.sSecond);
        if (known == word) {
            return;
        }
        words += (words.empty() ? "" : ", ") + known;
    }
    throw Failure(Category::Refused, std::string(row.parameter) + ": " + quoted(word) +
                                         " is not a word of the user interface; there are " + words);
}

std::string lastPart(const std::string &object) {
    return object.substr(std::string_view("Device.WiFi.").size());
}

} // namespace

Subject subjectOf(const std::string &word) {
    if (word != "ssid" && word != "radio") {
        throw Usage(quoted(word) + " is neither ssid nor radio");
    }
    return word == "ssid" ? Subject::Ssid : Subject::Radio;
}

Settings snapshot(Subject subject, int instance) {
    auto table = std::make_unique<WifiParamTable>();
    const auto call = [&] {
        return subject == Subject::Ssid ? GetSsIdInfoFromFapiToBuff(instance, table.get())
                                        : GetWireInfoFromFapiToBuff(instance, table.get());
    };
    const auto isUplink = [&] {
        const std::vector<Object> ssid =
            get({{"Device.WiFi.SSID." + std::to_string(instance), {{"X_ZINTU_NetworkType", {}}}}}, Reading::Leaf);
        return !ssid.empty() && valueOf(ssid.front(), "X_ZINTU_NetworkType") == "uplink";
    };
    if (subject == Subject::Ssid && isUplink()) {
        throw Failure(Category::Absent, "SSID " + std::to_string(instance) + " is an uplink: it has no access point",
                      "Device.WiFi.AccessPoint." + std::to_string(instance));
    }
    ask(call, {"no settings of that number"});
    return table;
}

std::string uiWord(const std::string &parameter, const std::string &value) {
    const Words *row = converterOf(parameter);
    return row ? row->convert(value.c_str(), 1) : value;
}

std::string fapiWord(const std::string &parameter, const std::string &value) {
    const Words *row = converterOf(parameter);
    if (!row) {
        return value;
    }
    checkWord(*row, value);
    return row->convert(value.c_str(), 0);
}

Report settings(Subject subject, int instance) {
    const Settings current = snapshot(subject, instance);
    Report result{.json = Value::object({{subject == Subject::Ssid ? "ssid" : "radio", instance},
                                         {"settings", Value::object()},
                                         {"user_interface", Value::object()}})};
    result.table.headings = {"SETTING", "VALUE", "USER INTERFACE"};
    for (const WifiParamRow &row : rows(*current)) {
        const std::string object = text(row.object);
        const std::string name = text(row.parameter);
        const std::string value = text(row.value);
        const std::string ui = uiWord(name, value);
        result.json["settings"][object][name] = shownValue(name, value);
        if (ui != value) { // never a secret
            result.json["user_interface"][object][name] = ui;
        }
        result.table.rows.push_back(
            {{lastPart(object) + "." + name}, {readable(shownText(name, value))}, {ui == value ? "" : ui}});
    }
    return result;
}

} // namespace pages::wifi
