// SPDX-License-Identifier: MIT
// `wifi ssid` and `wifi radio`, and the words of the user interface.
#include "pages/wifi/settings.h"

#include "help/similar.h"
#include "pages/failure.h"
#include "pages/page.h"
#include "pages/secret.h"
#include "pages/wifi/pages.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace pages::wifi {
namespace {

using ConvertWord = const char *(*)(const char *text, int direction);

const char *convertSecurity(const char *text, int direction) {
    constexpr int kRows = std::size(SecurityType_FapiToUi_Table);
    return direction == 1 ? FapiToUi_Str(text, SecurityType_FapiToUi_Table, kRows)
                          : UiToFapi_Str(text, SecurityType_FapiToUi_Table, kRows);
}

// The library has these in no table.
constexpr PairRow kPowerWords[] = {{"100", "high"}, {"50", "medium"}, {"25", "low"}};

struct WordedSetting {
    std::string_view parameter;
    ConvertWord convert;
    std::span<const PairRow> pairs; // all words that there are
};

const WordedSetting kWordedSettings[] = {
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

const WordedSetting *converterOf(const std::string &parameter) {
    const WordedSetting *const found =
        std::find_if(std::begin(kWordedSettings), std::end(kWordedSettings),
                     [&](const WordedSetting &row) { return row.parameter == parameter; });
    return found == std::end(kWordedSettings) ? nullptr : found;
}

// The library passes unknown words on, or takes them for its first one.
void checkWord(const WordedSetting &row, const std::string &word) {
    std::vector<std::string> words; // several values may have one word
    for (const PairRow &pair : row.pairs) {
        const std::string known = text(pair.sSecond);
        if (known == word) {
            return;
        }
        if (std::find(words.begin(), words.end(), known) == words.end()) {
            words.push_back(known);
        }
    }
    throw Failure(Category::Refused, std::string(row.parameter) + ": " + inQuotes(word) +
                                         " is not a word of the user interface; there are " + joined(words));
}

std::string lastPart(const std::string &object) {
    return object.substr(std::string_view("Device.WiFi.").size());
}

} // namespace

Subject subjectOf(const std::string &word) {
    if (word != "ssid" && word != "radio") {
        throw Usage(inQuotes(word) + " is neither ssid nor radio" + help::didYouMean(word, {"ssid", "radio"}));
    }
    return word == "ssid" ? Subject::Ssid : Subject::Radio;
}

std::string uiWord(const std::string &parameter, const std::string &value) {
    const WordedSetting *row = converterOf(parameter);
    return row ? row->convert(value.c_str(), 1) : value;
}

std::string fapiWord(const std::string &parameter, const std::string &value) {
    const WordedSetting *row = converterOf(parameter);
    if (!row) {
        return value;
    }
    checkWord(*row, value);
    return row->convert(value.c_str(), 0);
}

namespace {

struct Shown {
    std::string object;
    std::string name;
    std::optional<std::string> value;
};

// What the gateway lacks stands behind what it has of the same object.
std::vector<Shown> shownSettings(const Snapshot &snapshot) {
    std::vector<Shown> all;
    for (const WifiParamRow &row : rows(*snapshot.held)) {
        all.push_back({text(row.object), text(row.parameter), text(row.value)});
    }
    for (const MissingSetting &missing : snapshot.missing) {
        const auto last =
            std::find_if(all.rbegin(), all.rend(), [&](const Shown &shown) { return shown.object == missing.object; });
        all.insert(last == all.rend() ? all.end() : last.base(), {missing.object, missing.name, std::nullopt});
    }
    return all;
}

} // namespace

Report settings(Subject subject, int instance) {
    Report result{.json = Value::object({{subject == Subject::Ssid ? "ssid" : "radio", instance},
                                         {"settings", Value::object()},
                                         {"user_interface", Value::object()}})};
    result.table.headings = {"SETTING", "VALUE", "USER INTERFACE"};
    for (const auto &[object, name, value] : shownSettings(wholeSnapshot(subject, instance))) {
        result.json["settings"][object][name] = value ? shownValue(name, *value) : Value();
        const std::string ui = value ? uiWord(name, *value) : "";
        const bool differs = value && ui != *value; // never a secret
        if (differs) {
            result.json["user_interface"][object][name] = ui;
        }
        result.table.rows.push_back({{lastPart(object) + "." + name},
                                     {value ? readable(shownText(name, *value)) : readable({})},
                                     {differs ? ui : ""}});
    }
    return result;
}

} // namespace pages::wifi
