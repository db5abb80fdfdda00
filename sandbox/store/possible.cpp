// SPDX-License-Identifier: MIT
#include "store/possible.h"

#include "caltofal.h"
#include "store/model.h"
#include "value/accepted_value.h"
#include "value/escape.h"
#include "value/path.h"
#include "value/refusal.h"
#include "value/standard_type.h"
#include "value/value_list.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

namespace sandbox {
namespace {

enum class Takes { One, Several, SeveralOrNone };

// A setting, and the parameter of the same object that lists what it can be.
struct Listed {
    std::string_view object, setting, list;
    Takes takes = Takes::One;
    std::optional<std::string_view> always = std::nullopt; // a value that needs no mention
};

constexpr std::string_view kChannels = "PossibleChannels"; // as channelsOf() reads them

constexpr Listed kListed[] = {
    {"Device.WiFi.Radio.{i}.", "Channel", kChannels},
    {"Device.WiFi.Radio.{i}.", "OperatingFrequencyBand", "SupportedFrequencyBands"},
    {"Device.WiFi.Radio.{i}.", "OperatingStandards", "SupportedStandards", Takes::Several},
    {"Device.WiFi.Radio.{i}.", "OperatingChannelBandwidth", "SupportedOperatingChannelBandwidths"},
    {"Device.WiFi.Radio.{i}.", "TransmitPower", "TransmitPowerSupported", Takes::One, "-1"},
    {"Device.WiFi.Radio.{i}.", "BasicDataTransmitRates", "SupportedDataTransmitRates", Takes::SeveralOrNone},
    {"Device.WiFi.Radio.{i}.", "OperationalDataTransmitRates", "SupportedDataTransmitRates", Takes::SeveralOrNone},
    {"Device.WiFi.AccessPoint.{i}.Security.", "ModeEnabled", "ModesSupported"},
    {"Device.WiFi.AccessPoint.{i}.WPS.", "ConfigMethodsEnabled", "ConfigMethodsSupported", Takes::SeveralOrNone},
    {"Device.WiFi.EndPoint.{i}.WPS.", "ConfigMethodsEnabled", "ConfigMethodsSupported", Takes::SeveralOrNone},
};

// What channels a band has, for radios that do not list theirs.
struct Band {
    std::string_view name, channels;
};
constexpr Band kBands[] = {{"2.4GHz", "1-14"}, {"5GHz", "32-177"}, {"6GHz", "1-233"}};

// The running value of another parameter of the object; "" where there is none.
std::string valueBeside(Database &database, const std::string &key, std::string_view name) {
    const std::optional<ObjectRow> object = findObject(database, key);
    const std::optional<ParameterRow> row = object ? findParameter(database, object->id, name) : std::nullopt;
    return row ? row->running : "";
}

[[noreturn]] void refuse(const std::string &parameter, std::string_view value, const std::string &possible) {
    throw Refusal(CALTOFAL_OUT_OF_RANGE, parameter + ": " + quotedShort(value) + " is not possible, " + possible);
}

void refuseTwice(const std::vector<std::string_view> &items, const std::string &parameter, std::string_view list) {
    for (auto item = items.begin(); item != items.end(); ++item) {
        if (std::find(items.begin(), item, *item) != item) {
            throw Refusal(CALTOFAL_OUT_OF_RANGE,
                          parameter + ": " + quotedShort(list) + " has " + std::string(*item) + " twice");
        }
    }
}

bool allows(const Listed &rule, std::string_view list, std::string_view item) {
    if (rule.list != kChannels) {
        return listAllows(list, item);
    }
    const std::vector<int> channels = channelsOf(list);
    return std::any_of(channels.begin(), channels.end(), [&](int one) { return std::to_string(one) == item; });
}

void holdAgainst(const Listed &rule, const std::string &list, const std::string &parameter, std::string_view value) {
    std::vector<std::string_view> wanted =
        rule.takes == Takes::One ? std::vector<std::string_view>{value} : listItems(value);
    if (wanted.empty() && rule.takes == Takes::Several) {
        wanted.push_back(value);
    }
    refuseTwice(wanted, parameter, value);
    for (const std::string_view item : wanted) {
        if (item != rule.always && !allows(rule, list, item)) {
            refuse(parameter, item, std::string(rule.list) + " has " + list);
        }
    }
}

void holdAgainstBand(Database &database, const std::string &key, const std::string &parameter, std::string_view value) {
    const std::string band = valueBeside(database, key, "OperatingFrequencyBand");
    const auto *row = std::find_if(std::begin(kBands), std::end(kBands), [&](const Band &b) { return b.name == band; });
    if (row != std::end(kBands) && !listAllows(row->channels, value)) {
        refuse(parameter, value, band + " has the channels " + std::string(row->channels));
    }
}

} // namespace

void refuseImpossible(Database &database, const std::string &key, std::string_view name, const ValueType &type,
                      const std::string &value) {
    const std::string pattern = patternOf(key);
    const std::string parameter = pathOf(key) + "." + std::string(name);
    const auto *rule = std::find_if(std::begin(kListed), std::end(kListed),
                                    [&](const Listed &row) { return row.object == pattern && row.setting == name; });
    if (rule != std::end(kListed)) {
        if (const std::string list = valueBeside(database, key, rule->list); !list.empty()) {
            holdAgainst(*rule, list, parameter, value);
            return;
        }
        if (name == "Channel") {
            holdAgainstBand(database, key, parameter, value);
        }
    }
    const std::string_view standard = standardType(pattern + std::string(name));
    const bool ownWord = value.starts_with("X_"); // makers may add words to the standard's
    if (standard.empty() || ownWord) {
        return;
    }
    const ValueType meant = ValueType::parse(standard);
    if (!type.isLimited() || meant.isAddress()) { // a length does not say what an address is
        acceptedValue(meant, parameter, value);
    }
}

} // namespace sandbox
