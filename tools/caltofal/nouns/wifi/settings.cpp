// SPDX-License-Identifier: MIT
// `wifi ssid` and `wifi radio`, and the snapshots behind them.
#include "nouns/wifi/settings.h"

#include "arguments.h"
#include "nouns/wifi/interface.h"
#include "nouns/wifi/verbs.h"
#include "page_call.h"

#include <iterator>

namespace cli::wifi {
namespace {

using Convert = const char *(*)(const char *text, int direction);

const char *convertSecurity(const char *text, int direction) {
    constexpr int kRows = std::size(SecurityType_FapiToUi_Table);
    return direction == 1 ? FapiToUi_Str(text, SecurityType_FapiToUi_Table, kRows)
                          : UiToFapi_Str(text, SecurityType_FapiToUi_Table, kRows);
}

struct Row {
    std::string_view parameter;
    Convert convert;
};

constexpr Row kConverters[] = {
    {"AutoChannelEnable", AutoChannelEnable_ConvStr},
    {"Dot11nProtection", Dot11nProtect_ConvStr},
    {"ExtensionChannel", ExtensionChannel_ConvStr},
    {"GuardInterval", ShortGuardInterval_ConvStr},
    {"ModeEnabled", convertSecurity},
    {"OperatingChannelBandwidth", BandWidth_ConvStr},
    {"OperatingStandards", OperatingStandards_ConvStr},
    {"TransmitPower", TransmitPower_ConvStr},
    {"VhtGuardInterval", VhtShortGuardInterval_ConvStr},
    {"X_ZINTU_WMMOption", WMMOption_ConvStr},
};

std::string converted(const std::string &parameter, const std::string &value, int direction) {
    for (const Row &row : kConverters) {
        if (row.parameter == parameter) {
            return row.convert(value.c_str(), direction);
        }
    }
    return value;
}

std::string lastPart(const std::string &object) {
    return object.substr(std::string_view("Device.WiFi.").size());
}

Report show(Subject subject, const std::string &word) {
    const bool ssid = subject == Subject::Ssid;
    const int instance = checkedInstance(word, ssid ? "SSID" : "radio");
    const Settings settings = snapshot(subject, instance);
    Report result{{{ssid ? "ssid" : "radio", instance}, {"settings", Json::object()}}, {}, {}, {}};
    result.table.headings = {"SETTING", "VALUE", "USER INTERFACE"};
    for (const WifiParamRow &row : rows(*settings)) {
        const std::string object = text(row.object);
        const std::string name = text(row.parameter);
        const std::string value = text(row.value);
        const std::string ui = uiWord(name, value);
        put(result.json["settings"][object], name, typed(name, value));
        result.table.rows.push_back(
            {{lastPart(object) + "." + name}, {value.empty() ? "-" : value}, {ui == value ? "" : ui}});
    }
    return result;
}

template <Subject subject>
Run define(CLI::App &command) {
    const auto instance = std::make_shared<std::string>();
    addArgument(command, "NUMBER", *instance, "The instance number in the configuration layer");
    return [instance] { return show(subject, *instance); };
}

} // namespace

Subject subjectOf(const std::string &word) {
    if (word != "ssid" && word != "radio") {
        throw Usage("\"" + word.substr(0, 40) + "\" is neither ssid nor radio");
    }
    return word == "ssid" ? Subject::Ssid : Subject::Radio;
}

Settings snapshot(Subject subject, int instance) {
    auto table = std::make_unique<WifiParamTable>();
    const auto call = [&] {
        return subject == Subject::Ssid ? GetSsIdInfoFromFapiToBuff(instance, table.get())
                                        : GetWireInfoFromFapiToBuff(instance, table.get());
    };
    ask(call, {"no settings of that number"});
    return table;
}

std::string uiWord(const std::string &parameter, const std::string &value) {
    return converted(parameter, value, 1);
}

std::string fapiWord(const std::string &parameter, const std::string &value) {
    return converted(parameter, value, 0);
}

const Noun kSsidVerb = {"ssid", "The settings of an SSID, its access point and its security", "1\n9 --json",
                        define<Subject::Ssid>};

const Noun kRadioVerb = {"radio", "The settings of a radio and of its first access point", "1", define<Subject::Radio>};

} // namespace cli::wifi
