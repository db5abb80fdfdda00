// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "help/similar.h"
#include "pages/failure.h"
#include "pages/text.h"
#include "pages/wifi/pages.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <iterator>
#include <span>

namespace pages::wifi {
namespace {

using Convert = std::string (*)(const std::string &value, bool toUi);

struct Converter {
    const char *name;
    const char *what;
    Convert convert;
    std::span<const PairRow> pairs = {};   // for people to look at
    bool number = false;                   // the result is one
    bool oneWay = number && pairs.empty(); // there is no way back
};

// A number that is not one is a wrong command line; one out of range is refused.
int numberIn(const std::string &value, int least, int most) {
    const size_t sign = value.starts_with('-') ? 1 : 0;
    if (value.size() == sign || value.find_first_not_of("0123456789", sign) != std::string::npos) {
        throw Usage("value " + inQuotes(value) + " is not a number");
    }
    int number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc() || number < least || number > most) {
        throw Failure(Category::Refused, "value " + value.substr(0, 40) + " is outside " + std::to_string(least) +
                                             " to " + std::to_string(most));
    }
    return number;
}

template <const char *(*convert)(const char *, int)>
std::string textual(const std::string &value, bool toUi) {
    return convert(value.c_str(), toUi ? 1 : 0);
}

template <const auto &table>
std::string paired(const std::string &value, bool toUi) {
    return toUi ? FapiToUi_Str(value.c_str(), table, std::size(table))
                : UiToFapi_Str(value.c_str(), table, std::size(table));
}

// The thresholds and intervals replace what lies outside their own range by a default.
template <int (*convert)(int), int least = 0, int most = INT_MAX>
std::string numeric(const std::string &value, bool /*toUi*/) {
    return std::to_string(convert(numberIn(value, least, most)));
}

template <int radio>
std::string ssidNumber(const std::string &value, bool toUi) {
    constexpr int kSsids = 8; // of a radio
    const int first = toUi ? ConvSsidIdxToFapi(radio, 0) : 0;
    const int index = numberIn(value, first, first + kSsids - 1);
    return std::to_string(toUi ? ConvSsidIdxToUI(radio, index) : ConvSsidIdxToFapi(radio, index));
}

std::string phy(const std::string &value, bool /*toUi*/) {
    return DevToPhy_Str(value.c_str(), Interface_DevToPhy_Table, std::size(Interface_DevToPhy_Table));
}

std::string boolean(const std::string &value, bool toUi) {
    return toUi ? std::to_string(ConvStrToBool(value.c_str())) : ConvBoolToStr(numberIn(value, 0, 1));
}

std::string filterMode(const std::string &value, bool toUi) {
    const bool off = value == "off";
    return toUi ? std::to_string(ConvMacACLModeToUI(value.c_str()))
                : ConvMacACLModeToFapi(off ? 0 : 1, off ? 0 : numberIn(value, 0, 1));
}

std::string plain(const std::string &value, bool /*toUi*/) {
    return ConvStr(value.c_str());
}

std::string power(const std::string &value, bool toUi) {
    return TransmitPower_ConvStr(toUi ? std::to_string(numberIn(value, 0, 100)).c_str() : value.c_str(), toUi ? 1 : 0);
}

// The text may go on behind its digits.
std::string integer(const std::string &value, bool /*toUi*/) {
    errno = 0;
    const long number = strtol(value.c_str(), nullptr, 10);
    if (errno == ERANGE || number < INT_MIN || number > INT_MAX) {
        throw Failure(Category::Refused, "the number of " + inQuotes(value) + " is too large");
    }
    return std::to_string(ConvInt(value.c_str()));
}

constexpr Converter kConverters[] = {
    {"acl-mode", "MAC filter: Allow as 1, others as 0; back 1, 0 or off", filterMode, {}, false},
    {"auto-channel", "AutoChannelEnable", textual<AutoChannelEnable_ConvStr>},
    {"band", "OperatingFrequencyBand", paired<Interface_FapiToUi_Table>, Interface_FapiToUi_Table},
    {"bandwidth", "OperatingChannelBandwidth", textual<BandWidth_ConvStr>, BandWidth_FapiToUi_Table},
    {"beacon", "BeaconPeriod in its range, else its default", numeric<ConvBeaconInterval>, {}, true},
    {"boolean", "true and 1 as 1; back a number", boolean},
    {"channel-list", "ChannelsInUse", textual<ChannelList_ConvStr>},
    {"dtim", "DTIMPeriod in its range, else its default", numeric<ConvDtimInterval>, {}, true},
    {"extension", "ExtensionChannel", textual<ExtensionChannel_ConvStr>, SideBand_FapiToUi_Table},
    {"fragmentation",
     "FragmentationThreshold in its range, else its default",
     numeric<ConvFragmentationThreshold>,
     {},
     true},
    {"frequency", "the channel of a frequency in MHz", numeric<ConvFreqChannel, 2412, 64800>, {}, true},
    {"guard-interval", "GuardInterval", textual<ShortGuardInterval_ConvStr>, ShortGuardInterval_FapiToUi_Table},
    {"number", "the number that a text begins with", integer, {}, true},
    {"phy", "the phy of an interface", phy, Interface_DevToPhy_Table, false, true},
    {"power", "TransmitPower, percent and word", power},
    {"power-level", "TransmitPower, percent as 1 (high) to 3 (low)", numeric<ConvTransmitPower, 0, 100>, {}, true},
    {"protection", "Dot11nProtection", textual<Dot11nProtect_ConvStr>, Dot11nProtect_FapiToUi_Table},
    {"rts", "RTSThreshold in its range, else its default", numeric<ConvRtsThreshold>, {}, true},
    {"security", "ModeEnabled", paired<SecurityType_FapiToUi_Table>, SecurityType_FapiToUi_Table},
    {"ssid-radio1", "the number of an SSID of radio 1", ssidNumber<1>, {}, true, false},
    {"ssid-radio2", "the number of an SSID of radio 2", ssidNumber<2>, {}, true, false},
    {"standards", "OperatingStandards", textual<OperatingStandards_ConvStr>, WireLessMode_FapiToUi_Table},
    {"text", "any text, as it is", plain},
    {"vht-guard-interval", "VhtGuardInterval", textual<VhtShortGuardInterval_ConvStr>,
     VhtShortGuardInterval_FapiToUi_Table},
    {"wmm", "X_ZINTU_WMMOption", textual<WMMOption_ConvStr>, WMM_Option_FapiToUi_Table},
};

const Converter &converterNamed(const std::string &name) {
    const auto *const found = std::find_if(std::begin(kConverters), std::end(kConverters),
                                           [&](const Converter &one) { return one.name == name; });
    if (found == std::end(kConverters)) {
        std::vector<std::string> names;
        std::transform(std::begin(kConverters), std::end(kConverters), std::back_inserter(names),
                       [](const Converter &one) { return one.name; });
        throw Usage(inQuotes(name) + " is not a conversion" + help::didYouMean(name, names));
    }
    return *found;
}

bool isWordOf(const Converter &converter, const std::string &value, bool toUi) {
    return std::any_of(converter.pairs.begin(), converter.pairs.end(),
                       [&](const PairRow &pair) { return (toUi ? text(pair.sFirst) : text(pair.sSecond)) == value; });
}

} // namespace

Report conversions() {
    Report result{.json = Value::object({{"conversions", Value::object()}})};
    for (const Converter &converter : kConverters) {
        result.json["conversions"][converter.name] = converter.what;
        result.table.rows.push_back({{converter.name}, {converter.what}});
    }
    return result;
}

Report conversionWords(const std::string &name) {
    const Converter &converter = converterNamed(name);
    if (converter.pairs.empty()) {
        throw Usage(name + " has no table: give a value");
    }
    Report result{.json = Value::object({{"table", name}, {"pairs", Value::list()}})};
    result.table.headings = {"FAPI", "UI"};
    for (const PairRow &pair : converter.pairs) {
        result.json["pairs"].push(Value::object({{"fapi", text(pair.sFirst)}, {"ui", text(pair.sSecond)}}));
        result.table.rows.push_back({{text(pair.sFirst)}, {text(pair.sSecond)}});
    }
    return result;
}

Report convert(const std::string &name, const std::string &value, bool toUi) {
    const Converter &converter = converterNamed(name);
    if (converter.oneWay && !toUi) {
        throw Usage(name + " has no way back: --to fapi does not go with it");
    }
    const std::string converted = converter.convert(value, toUi);
    Report result{
        .json = Value::object({{"table", name},
                               {"value", value},
                               {"to", toUi ? "ui" : "fapi"},
                               {"result", converter.number ? Value(ConvInt(converted.c_str())) : Value(converted)}}),
        .raw = converted + "\n"};
    if (!converter.pairs.empty() && !isWordOf(converter, value, toUi)) {
        result.notes.push_back(inQuotes(value) + " is not a word of " + name +
                               ": this is what the library makes of it");
    }
    return result;
}

} // namespace pages::wifi
