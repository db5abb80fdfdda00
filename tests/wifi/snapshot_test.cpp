// SPDX-License-Identifier: MIT
#include "snapshot.h"
#include "wifi_support.h"

#include <set>

using namespace test;

namespace {

using Snapshots = WifiTest;

// The rows as "object.parameter=value".
std::vector<std::string> rows(const WifiParamTable &table) {
    std::vector<std::string> texts;
    for (int32_t i = 0; i < table.count; ++i) {
        const WifiParamRow &row = table.rows[i];
        texts.push_back(std::string(row.object) + "." + row.parameter + "=" + row.value);
    }
    return texts;
}

TEST_F(Snapshots, SetParam) {
    const auto table = std::make_unique<WifiParamTable>();
    const std::string text(300, 'x');
    EXPECT_EQ(-1, SetParam(nullptr, "o", "p", "v"));
    EXPECT_EQ(-1, SetParam(table.get(), nullptr, "p", "v"));
    EXPECT_EQ(-1, SetParam(table.get(), "o", nullptr, "v"));
    EXPECT_EQ(-1, SetParam(table.get(), "o", "p", nullptr));
    EXPECT_EQ(0, table->count);
    table->count = 99;
    EXPECT_EQ(0, SetParam(table.get(), text.c_str(), text.c_str(), text.c_str()));
    EXPECT_EQ(-1, SetParam(table.get(), "o", "p", "v"));
    EXPECT_EQ(100, table->count);
    EXPECT_EQ(text.substr(0, 254), table->rows[99].object);
    EXPECT_EQ(text.substr(0, 254), table->rows[99].parameter);
    EXPECT_EQ(text.substr(0, 126), table->rows[99].value);
}

TEST_F(Snapshots, KeptNames) {
    for (const auto &[snapshot, kept] : {std::pair{&wifi::kSsidSnapshot, 20U}, {&wifi::kRadioSnapshot, 27U}}) {
        std::set<std::string> names;
        for (const wifi::Setting &setting : snapshot->settings) {
            if (!*setting.name) {
                continue;
            }
            const bool isKept = setting.use != wifi::Use::Ask;
            EXPECT_EQ(isKept ? setting.name : nullptr, wifi::findKept(*snapshot, setting.name)) << setting.name;
            if (isKept) {
                EXPECT_TRUE(names.insert(setting.name).second) << setting.name;
            }
            std::string other = setting.name;
            other.back() ^= 1;
            EXPECT_EQ(nullptr, wifi::findKept(*snapshot, other.c_str())) << other;
            other = setting.name;
            other += 'x';
            EXPECT_EQ(nullptr, wifi::findKept(*snapshot, other.c_str())) << other;
        }
        EXPECT_EQ(kept, names.size());
        EXPECT_EQ(nullptr, wifi::findKept(*snapshot, ""));
        EXPECT_EQ(nullptr, wifi::findKept(*snapshot, std::string(255, 'x').c_str()));
    }
}

TEST_F(Snapshots, Ssid) {
    const std::string security = "Device.WiFi.AccessPoint.9.Security";
    std::vector<std::string> settings = {"ModeEnabled=WPA2-Personal",
                                         "WEPKey=",
                                         "WEPKey=2",
                                         "X_ZINTU_EncryptionType=e",
                                         "RekeyingInterval=0",
                                         "RadiusServerIPAddr=i",
                                         "RadiusServerPort=1812",
                                         "RadiusSecret=s",
                                         "X_ZINTU_Wep_Encryption=n",
                                         "X_ZINTU_Wep_KeyType=t",
                                         "KeyPassphrase=" + std::string(126, 'k')};
    std::vector<std::string> expected = {"before.p=v", "Device.WiFi.SSID.9.SSID=Home=Net"};
    for (const std::string &setting : settings) {
        expected.emplace_back(security).append(".").append(setting);
    }
    settings.back() += "cut";
    settings.insert(settings.begin(), {"ModesSupported=None", "modeEnabled=1"}); // not kept
    platform().on(security,
                  {object("Device.WiFi.SSID.9", {"SSID=Home=Net", "LowerLayers=x"}), object(security, settings)});
    const auto table = std::make_unique<WifiParamTable>();
    SetParam(table.get(), "before", "p", "v");
    EXPECT_EQ(0, GetSsIdInfoFromFapiToBuff(9, table.get()));
    EXPECT_EQ(expected, rows(*table));
    EXPECT_EQ(
        std::vector<std::string>{
            "getValue 1/0x1100/2 Device.WiFi.SSID.9(Enable,X_ZINTU_Active,SSID,BSSID,X_ZINTU_NetworkType) "
            "Device.WiFi.AccessPoint.9(SSIDAdvertisementEnabled,IsolationEnable,X_ZINTU_WebUIAccessPermit,"
            "X_ZINTU_InternetOnly) Device.WiFi.AccessPoint.9.X_LANTIQ_COM_Vendor(MACAddressControlEnabled) "
            "Device.WiFi.AccessPoint.9.Security"},
        platform().callTexts());
    EXPECT_EQ(tag("GetSsIdInfoFromFapiToBuff") + "START_FUNCTION \n", console());
    EXPECT_EQ(1, platform().releases());
}

TEST_F(Snapshots, Radio) {
    platform().on("Device.WiFi.Radio.2.X_LANTIQ_COM_Vendor",
                  {object("Device.WiFi.Radio.2", {"Name=wlan2", "Channel=36", "ChannelsInUse=36,40"}),
                   object("Device.WiFi.AccessPoint.9", {"WMMEnable=1"})});
    const auto table = std::make_unique<WifiParamTable>();
    EXPECT_EQ(0, GetWireInfoFromFapiToBuff(2, table.get()));
    EXPECT_EQ((std::vector<std::string>{"Device.WiFi.Radio.2.Channel=36", "Device.WiFi.AccessPoint.9.WMMEnable=1"}),
              rows(*table));
    EXPECT_EQ(
        std::vector<std::string>{
            "getValue 1/0x1100/2 Device.WiFi.Radio.2(Enable,Name,GuardInterval,BeaconPeriod,DTIMPeriod,"
            "FragmentationThreshold,RTSThreshold,IEEE80211hEnabled,RegulatoryDomain,AutoChannelEnable,Channel,"
            "OperatingStandards,OperatingChannelBandwidth,ExtensionChannel,TransmitPower,ChannelsInUse) "
            "Device.WiFi.AccessPoint.9(WMMEnable,UAPSDEnable,X_ZINTU_WMMOption,X_ZINTU_WMMAckPolicy) "
            "Device.WiFi.Radio.2.X_LANTIQ_COM_Vendor(Dot11dEnable,Dot11nProtection,WaveExplicitBeamforming,"
            "VhtSUbeamformerEnabled,VhtGuardInterval,WaveInterfererDetectionThreshold,CoexEnabled,"
            "WaveIgnore40MhzIntolerant,WaveMuOperation)"},
        platform().callTexts());
    const std::string function = tag("GetWireInfoFromFapiToBuff");
    EXPECT_EQ(function + "START_FUNCTION \n" + function + "return [0] \n", console());

    EXPECT_EQ(-1, GetWireInfoFromFapiToBuff(1, table.get()));
    EXPECT_EQ(2, table->count);
    EXPECT_TRUE(console().ends_with(refused("GetWireInfoFromFapiToBuff") + function + "return [-1] \n"));
    EXPECT_EQ(2, platform().releases());
    EXPECT_NE(std::string::npos, platform().callTexts().back().find(" Device.WiFi.AccessPoint.1("));
}

TEST_F(Snapshots, FullTableLosesRows) {
    std::vector<std::string> settings(101, "SSID=x");
    platform().on("Device.WiFi.AccessPoint.1.Security", {object("Device.WiFi.SSID.1", settings)});
    const auto table = std::make_unique<WifiParamTable>();
    EXPECT_EQ(0, GetSsIdInfoFromFapiToBuff(1, table.get()));
    EXPECT_EQ(100, table->count);
}

} // namespace
