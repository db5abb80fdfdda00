// SPDX-License-Identifier: MIT
#include "snapshot.h"

#include <string_view>

namespace wifi {
namespace {

// Adds the index of a snapshot's names.
consteval Snapshot indexed(Snapshot snapshot) {
    uint8_t count = 0;
    for (size_t length = 1; length <= kLongestName; ++length) {
        snapshot.index.first[length] = count;
        for (uint8_t i = 0; i < kMostSettings; ++i) {
            const Setting &setting = snapshot.settings[i];
            if (setting.use != Use::Ask && std::string_view(setting.name).size() == length) {
                snapshot.index.order[count++] = i;
            }
        }
    }
    snapshot.index.first[kLongestName + 1] = count;
    return snapshot;
}

} // namespace

constexpr Snapshot kSsidSnapshot = indexed({
    .steps =
        {
            {"Device.WiFi.SSID.", "&", Instance::Own, 5},
            {"Device.WiFi.AccessPoint.", "&", Instance::AccessPoint, 4},
            {"Device.WiFi.AccessPoint.", ".X_LANTIQ_COM_Vendor&", Instance::AccessPoint, 1},
            {"Device.WiFi.AccessPoint.", ".Security", Instance::AccessPoint, 0},
        },
    .settings =
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
        },
    .index = {},
});

constexpr Snapshot kRadioSnapshot = indexed({
    .steps =
        {
            {"Device.WiFi.Radio.", "&", Instance::Own, 16},
            {"Device.WiFi.AccessPoint.", "&", Instance::AccessPoint, 4},
            {"Device.WiFi.Radio.", ".X_LANTIQ_COM_Vendor", Instance::Own, 9},
        },
    .settings =
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
        },
    .index = {},
});

} // namespace wifi
