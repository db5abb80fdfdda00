// SPDX-License-Identifier: MIT
#include "wifi/settings/snapshot.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace wifi {
namespace {

template <size_t StepCount, size_t Count>
consteval Snapshot packed(const Step (&steps)[StepCount], const Setting (&settings)[Count]) {
    Snapshot snapshot = {};
    snapshot.stepCount = StepCount;
    std::copy(std::begin(steps), std::end(steps), snapshot.steps);
    char *end = snapshot.names;
    for (size_t i = 0; i < Count; ++i) {
        const std::string_view name = settings[i].name;
        snapshot.nameAt[i] = static_cast<uint16_t>(end - snapshot.names);
        end = std::copy(name.begin(), name.end(), end) + 1; // past the array: does not compile
    }
    static_assert(Count <= UINT8_MAX);
    uint8_t kept = 0;
    for (size_t length = 1; length <= kLongestName; ++length) {
        snapshot.index.first[length] = kept;
        for (size_t i = 0; i < Count; ++i) {
            if (settings[i].use != Use::Ask && std::string_view(settings[i].name).size() == length) {
                snapshot.index.order[kept++] = static_cast<uint8_t>(i);
            }
        }
    }
    snapshot.index.first[kLongestName + 1] = kept;
    return snapshot;
}

} // namespace

constexpr Snapshot kSsidSnapshot = packed(
    {
        {"&", Table::Ssid, Instance::Own, 5},
        {"&", Table::AccessPoint, Instance::AccessPoint, 4},
        {".X_LANTIQ_COM_Vendor&", Table::AccessPoint, Instance::AccessPoint, 1},
        {".Security", Table::AccessPoint, Instance::AccessPoint, 0},
    },
    {
        {"Enable", Use::AskAndKeep},
        {"X_ZINTU_Active", Use::AskAndKeep},
        {"SSID", Use::AskAndKeep},
        {"BSSID", Use::AskAndKeep},
        {"X_ZINTU_NetworkType", Use::AskAndKeep},
        {"SSIDAdvertisementEnabled", Use::AskAndKeep},
        {"IsolationEnable", Use::AskAndKeep},
        {"X_ZINTU_WebUIAccessPermit", Use::AskAndKeep},
        {"X_ZINTU_InternetOnly", Use::AskAndKeep},
        {"MACAddressControlEnabled", Use::AskAndKeep},
        {"ModeEnabled", Use::Keep},
        {"X_ZINTU_EncryptionType", Use::Keep},
        {"KeyPassphrase", Use::Keep},
        {"RekeyingInterval", Use::Keep},
        {"RadiusServerIPAddr", Use::Keep},
        {"RadiusServerPort", Use::Keep},
        {"RadiusSecret", Use::Keep},
        {"X_ZINTU_Wep_Encryption", Use::Keep},
        {"X_ZINTU_Wep_KeyType", Use::Keep},
        {"WEPKey", Use::Keep},
    });

constexpr Snapshot kRadioSnapshot = packed(
    {
        {"&", Table::Radio, Instance::Own, 16},
        {"&", Table::AccessPoint, Instance::AccessPoint, 4},
        {".X_LANTIQ_COM_Vendor", Table::Radio, Instance::Own, 9},
    },
    {
        {"Enable", Use::AskAndKeep},
        {"Name", Use::Ask},
        {"GuardInterval", Use::AskAndKeep},
        {"BeaconPeriod", Use::AskAndKeep},
        {"DTIMPeriod", Use::AskAndKeep},
        {"FragmentationThreshold", Use::AskAndKeep},
        {"RTSThreshold", Use::AskAndKeep},
        {"IEEE80211hEnabled", Use::AskAndKeep},
        {"RegulatoryDomain", Use::AskAndKeep},
        {"AutoChannelEnable", Use::AskAndKeep},
        {"Channel", Use::AskAndKeep},
        {"OperatingStandards", Use::AskAndKeep},
        {"OperatingChannelBandwidth", Use::AskAndKeep},
        {"ExtensionChannel", Use::AskAndKeep},
        {"TransmitPower", Use::AskAndKeep},
        {"ChannelsInUse", Use::Ask},
        {"WMMEnable", Use::AskAndKeep},
        {"UAPSDEnable", Use::AskAndKeep},
        {"X_ZINTU_WMMOption", Use::AskAndKeep},
        {"X_ZINTU_WMMAckPolicy", Use::AskAndKeep},
        {"Dot11dEnable", Use::AskAndKeep},
        {"Dot11nProtection", Use::AskAndKeep},
        {"WaveExplicitBeamforming", Use::AskAndKeep},
        {"VhtSUbeamformerEnabled", Use::AskAndKeep},
        {"VhtGuardInterval", Use::AskAndKeep},
        {"WaveInterfererDetectionThreshold", Use::AskAndKeep},
        {"CoexEnabled", Use::AskAndKeep},
        {"WaveIgnore40MhzIntolerant", Use::AskAndKeep},
        {"WaveMuOperation", Use::AskAndKeep},
    });

} // namespace wifi
