// SPDX-License-Identifier: MIT
// The settings of an SSID or a radio, as the library reads them; on gateways of other makers, which lack some of the
// objects that the library asks for, object by object.
#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/layer/query.h"
#include "pages/wifi/instances.h"
#include "pages/wifi/settings.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace pages::wifi {
namespace {

enum class Base { Own, AccessPoint };

// An object's settings, in the library's order.
struct Group {
    Base base;
    const char *rest; // of the path
    std::span<const char *const> names;
};

constexpr const char *kSsid[] = {"Enable", "X_ZINTU_Active", "SSID", "BSSID", "X_ZINTU_NetworkType"};
constexpr const char *kAccessPoint[] = {"SSIDAdvertisementEnabled", "IsolationEnable", "X_ZINTU_WebUIAccessPermit",
                                        "X_ZINTU_InternetOnly"};
constexpr const char *kVendorFilter[] = {"MACAddressControlEnabled"};
constexpr const char *kSecurity[] = {
    "ModeEnabled",      "X_ZINTU_EncryptionType", "KeyPassphrase",          "RekeyingInterval",    "RadiusServerIPAddr",
    "RadiusServerPort", "RadiusSecret",           "X_ZINTU_Wep_Encryption", "X_ZINTU_Wep_KeyType", "WEPKey"};
constexpr Group kSsidGroups[] = {{Base::Own, "", kSsid},
                                 {Base::AccessPoint, "", kAccessPoint},
                                 {Base::AccessPoint, ".X_LANTIQ_COM_Vendor", kVendorFilter},
                                 {Base::AccessPoint, ".Security", kSecurity}};

constexpr const char *kRadio[] = {"Enable",
                                  "GuardInterval",
                                  "BeaconPeriod",
                                  "DTIMPeriod",
                                  "FragmentationThreshold",
                                  "RTSThreshold",
                                  "IEEE80211hEnabled",
                                  "RegulatoryDomain",
                                  "AutoChannelEnable",
                                  "Channel",
                                  "OperatingStandards",
                                  "OperatingChannelBandwidth",
                                  "ExtensionChannel",
                                  "TransmitPower"};
constexpr const char *kQuality[] = {"WMMEnable", "UAPSDEnable", "X_ZINTU_WMMOption", "X_ZINTU_WMMAckPolicy"};
constexpr const char *kVendorRadio[] = {"Dot11dEnable",
                                        "Dot11nProtection",
                                        "WaveExplicitBeamforming",
                                        "VhtSUbeamformerEnabled",
                                        "VhtGuardInterval",
                                        "WaveInterfererDetectionThreshold",
                                        "CoexEnabled",
                                        "WaveIgnore40MhzIntolerant",
                                        "WaveMuOperation"};
constexpr Group kRadioGroups[] = {
    {Base::Own, "", kRadio}, {Base::AccessPoint, "", kQuality}, {Base::Own, ".X_LANTIQ_COM_Vendor", kVendorRadio}};

struct Numbers {
    Subject subject;
    int own;
    int accessPoint; // 0: none
};

std::string pathOf(const Group &group, const Numbers &numbers) {
    if (group.base == Base::AccessPoint) {
        return "Device.WiFi.AccessPoint." + std::to_string(numbers.accessPoint) + group.rest;
    }
    const char *const table = numbers.subject == Subject::Ssid ? "Device.WiFi.SSID." : "Device.WiFi.Radio.";
    return table + std::to_string(numbers.own) + group.rest;
}

// The groups whose objects have a name: without an access point, its settings are left out.
template <class Act>
void eachGroup(const Numbers &numbers, Act act) {
    const std::span<const Group> groups =
        numbers.subject == Subject::Ssid ? std::span<const Group>(kSsidGroups) : std::span<const Group>(kRadioGroups);
    for (const Group &group : groups) {
        if (group.base == Base::Own || numbers.accessPoint != 0) {
            act(group, pathOf(group, numbers));
        }
    }
}

Settings askLibrary(const Numbers &numbers) {
    auto table = std::make_unique<WifiParamTable>();
    const auto call = [&] {
        return numbers.subject == Subject::Ssid ? GetSsIdInfoFromFapiToBuff(numbers.own, table.get())
                                                : GetWireInfoFromFapiToBuff(numbers.own, table.get());
    };
    ask(call, {"no settings of that number"});
    return table;
}

// What there is of one object; nothing where the gateway lacks it.
void addGroup(WifiParamTable &table, const Group &group, const std::string &path) {
    Object wanted{path};
    std::transform(group.names.begin(), group.names.end(), std::back_inserter(wanted.parameters),
                   [](const char *name) { return Parameter{name}; });
    try {
        for (const Object &object : get({wanted}, Reading::Leaf)) {
            for (const Parameter &parameter : object.parameters) {
                SetParam(&table, object.name.c_str(), parameter.name.c_str(), parameter.value.c_str());
            }
        }
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
    }
}

// The access point of the first of a radio's SSIDs that has one.
int accessPointOfRadio(int radio) {
    const std::vector<Object> accessPoints = anyInstancesOf("Device.WiFi.AccessPoint", {{"SSIDReference"}, {"Enable"}});
    for (const Object &ssid : anyInstancesOf("Device.WiFi.SSID", {{"LowerLayers"}})) {
        const int found = radioOf(ssid) == radio ? accessPointOf(instanceOf(ssid.name), accessPoints) : 0;
        if (found != 0) {
            return found;
        }
    }
    return 0;
}

Settings askEachObject(Numbers &numbers) {
    if (numbers.subject == Subject::Ssid) {
        requireSsid(numbers.own);
        numbers.accessPoint = accessPointOf(numbers.own);
    } else {
        requireRadio(numbers.own);
        numbers.accessPoint = accessPointOfRadio(numbers.own);
    }
    auto table = std::make_unique<WifiParamTable>();
    eachGroup(numbers, [&](const Group &group, const std::string &path) { addGroup(*table, group, path); });
    return table;
}

bool holds(const WifiParamTable &table, const std::string &object, const char *name) {
    return std::any_of(rows(table).begin(), rows(table).end(), [&](const WifiParamRow &row) {
        return text(row.object) == object && text(row.parameter) == name;
    });
}

std::vector<MissingSetting> missingIn(const WifiParamTable &table, const Numbers &numbers) {
    std::vector<MissingSetting> missing;
    eachGroup(numbers, [&](const Group &group, const std::string &path) {
        for (const char *name : group.names) {
            if (!holds(table, path, name)) {
                missing.push_back({path, name});
            }
        }
    });
    return missing;
}

void refuseUplink(int ssid) {
    const std::string number = std::to_string(ssid);
    const std::vector<Object> found = get({{"Device.WiFi.SSID." + number, {{"X_ZINTU_NetworkType"}}}}, Reading::Leaf);
    if (!found.empty() && valueOf(found.front(), "X_ZINTU_NetworkType") == "uplink") {
        throw Failure(Category::Absent, "SSID " + number + " is an uplink: it has no access point",
                      "Device.WiFi.AccessPoint." + number);
    }
}

} // namespace

Snapshot wholeSnapshot(Subject subject, int instance) {
    Numbers numbers = {subject, instance, subject == Subject::Ssid ? instance : ConvSsidIdxToFapi(instance, 0)};
    Snapshot result;
    try {
        if (subject == Subject::Ssid) {
            refuseUplink(instance);
        }
        result.held = askLibrary(numbers);
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent || failure.code() == 0) {
            throw;
        }
        result.held = askEachObject(numbers);
    }
    result.missing = missingIn(*result.held, numbers);
    return result;
}

Settings snapshot(Subject subject, int instance) {
    return wholeSnapshot(subject, instance).held;
}

} // namespace pages::wifi
