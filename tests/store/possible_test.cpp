// SPDX-License-Identifier: MIT
//
// Settings held against what the gateway, or the standard, says is possible.
#include "cal/cal_sandbox.h"
#include "exchange/demo.h"
#include "exchange/gateway.h"
#include "exchange/gateway_export.h"
#include "exchange/gateway_file.h"
#include "sandbox_fixture.h"
#include "store/possible.h"
#include "value/path.h"
#include "value/value_list.h"

namespace {

// Two radios as dumps of gateways have them, without types: the first lists what it can, the second does not.
constexpr const char *kRadios = R"(
Device.WiFi.Radio.1.PossibleChannels [string] = 1-11, 13
Device.WiFi.Radio.1.Channel [unsignedInt rw] = 0
Device.WiFi.Radio.1.SupportedStandards [string] = b,g,n
Device.WiFi.Radio.1.OperatingStandards [string rw] = b,g
Device.WiFi.Radio.1.SupportedOperatingChannelBandwidths [string] = 20MHz, 40MHz
Device.WiFi.Radio.1.OperatingChannelBandwidth [string rw] = 20/40
Device.WiFi.Radio.1.TransmitPowerSupported [string] = 25,100
Device.WiFi.Radio.1.TransmitPower [int rw] = 100
Device.WiFi.Radio.1.BeaconPeriod [unsignedInt rw] = 100
Device.WiFi.Radio.1.RetryLimit [unsignedInt(0:20) rw] = 7
Device.WiFi.Radio.2.OperatingFrequencyBand [string rw] = 5GHz
Device.WiFi.Radio.2.PossibleChannels [string] =
Device.WiFi.Radio.2.Channel [unsignedInt rw] = 36
Device.WiFi.Radio.2.OperatingStandards [string rw] = a
Device.WiFi.Radio.2.OperatingChannelBandwidth [string rw] = 80MHz
Device.WiFi.Radio.2.Alias [string rw] =
Device.WiFi.Radio.1.SupportedDataTransmitRates [string] = 6,12
Device.WiFi.Radio.1.BasicDataTransmitRates [string rw] = 6
Device.WiFi.SSID.1.SSID [string rw] = net
Device.DNS.Client.Server.1.DNSServer [string(45) rw] = a text that a device holds
)";

class PossibleTest : public SandboxTest {
  protected:
    void SetUp() override {
        SandboxTest::SetUp();
        sandbox::createGateway(location("radios"), sandbox::readGatewayFile(kRadios, "radios"), "radios");
        setenv("CALTOFAL_GATEWAY", "radios", 1);
    }
};

TEST_F(PossibleTest, HoldsSettingsAgainstTheGateway) {
    struct Case {
        const char *object, *name, *value;
        const char *reason; // "" when it is possible
    };
    const Case cases[] = {
        {"Radio.1", "Channel", "11", ""},
        {"Radio.1", "Channel", "13", ""},
        {"Radio.1", "Channel", "12", "\"12\" is not possible, PossibleChannels has 1-11, 13"},
        {"Radio.1", "Channel", "165", "\"165\" is not possible, PossibleChannels has 1-11, 13"},
        {"Radio.1", "OperatingStandards", "g,n", ""},
        {"Radio.1", "OperatingStandards", "g, zzz", "\"zzz\" is not possible, SupportedStandards has b,g,n"},
        {"Radio.1", "OperatingStandards", "n, b,n", "\"n, b,n\" has n twice"},
        {"Radio.1", "OperatingStandards", "", "\"\" is not possible, SupportedStandards has b,g,n"},
        {"Radio.1", "BasicDataTransmitRates", "", ""},         // none is a choice
        {"Radio.1", "OperatingChannelBandwidth", "20/40", ""}, // what it has
        {"Radio.1", "OperatingChannelBandwidth", "",
         "\"\" is not possible, SupportedOperatingChannelBandwidths has 20MHz, 40MHz"},
        {"Radio.1", "OperatingChannelBandwidth", "40MHz", ""},
        {"Radio.1", "OperatingChannelBandwidth", "20MHz,40MHz",
         "\"20MHz,40MHz\" is not possible, SupportedOperatingChannelBandwidths has 20MHz, 40MHz"},
        {"Radio.1", "OperatingChannelBandwidth", "20/40",
         "\"20/40\" is not possible, SupportedOperatingChannelBandwidths has 20MHz, 40MHz"},
        {"Radio.1", "TransmitPower", "-1", ""},
        {"Radio.1", "TransmitPower", "30", "\"30\" is not possible, TransmitPowerSupported has 25,100"},
        {"Radio.1", "BeaconPeriod", "0", "\"0\" is outside unsignedInt(1:65535)"},
        {"Radio.1", "RetryLimit", "20", ""}, // the gateway's own range
        {"Radio.2", "Channel", "165", ""},
        {"Radio.2", "Channel", "6", "\"6\" is not possible, 5GHz has the channels 32-177"},
        {"Radio.2", "OperatingStandards", "a,ax", ""},
        {"Radio.2", "OperatingStandards", "q", "\"q\" is outside list enum(a|b|g|n|ac|ax|be)"},
        {"Radio.2", "OperatingChannelBandwidth", "21MHz",
         "\"21MHz\" is outside enum(20MHz|40MHz|80MHz|160MHz|80+80MHz|320MHz-1|320MHz-2|Auto)"},
        {"Radio.2", "OperatingChannelBandwidth", "X_MAKER_5MHz", ""},
        {"Radio.2", "Alias", "anything", ""},
        {"SSID.1", "SSID", "a name of more than thirty-two bytes",
         "\"a name of more than thirty-two bytes\" is outside string(32)"},
    };
    for (const Case &row : cases) {
        const std::string path = std::string("Device.WiFi.") + row.object;
        const bool possible = *row.reason == '\0';
        EXPECT_EQ(setOne(path, {{row.name, row.value}}), possible ? 0 : CALTOFAL_OUT_OF_RANGE) << row.value;
        EXPECT_EQ(cal_sandboxReason(), possible ? "" : path + "." + row.name + ": " + row.reason);
        EXPECT_EQ(valueOf(path, row.name) == row.value, possible) << row.value;
    }
}

TEST_F(PossibleTest, TakesAddressesOnlyWhereAddressesStand) {
    const char *const server = "Device.DNS.Client.Server.1";
    EXPECT_EQ(valueOf(server, "DNSServer"), "a text that a device holds");
    EXPECT_EQ(setOne(server, {{"DNSServer", "notanip"}}), CALTOFAL_WRONG_TYPE);
    EXPECT_EQ(cal_sandboxReason(), std::string(server) + ".DNSServer: \"notanip\" is not of type IPAddress");
    EXPECT_EQ(setOne(server, {{"DNSServer", ""}}), 0);
    EXPECT_EQ(setOne(server, {{"DNSServer", "2001:db8::53"}}), 0);
}

TEST(ChannelList, HasEveryFourthNumberBeyond24GHz) {
    EXPECT_EQ(sandbox::channelsOf("1-3, 13,"), (std::vector{1, 2, 3, 13}));
    EXPECT_EQ(sandbox::channelsOf("36-48,149"), (std::vector{36, 40, 44, 48, 149}));
    EXPECT_EQ(sandbox::channelsOf("1-2147483647").size(), 233U);
    EXPECT_EQ(sandbox::channelsOf("x,-,9-"), std::vector<int>());
}

TEST_F(PossibleTest, JudgesAMessageAsAWhole) {
    const char *const radio = "Device.WiFi.Radio.2";
    ASSERT_EQ(setOne(radio, {{"Channel", "6"}, {"OperatingFrequencyBand", "2.4GHz"}}), 0) << cal_sandboxReason();
    EXPECT_EQ(setOne(radio, {{"OperatingFrequencyBand", "5GHz"}, {"Channel", "7"}}), CALTOFAL_OUT_OF_RANGE);
    EXPECT_EQ(valueOf(radio, "OperatingFrequencyBand"), "2.4GHz");
    const auto stored = Message::set();
    stored->with(radio, kSet, {{"Channel", "36"}});
    EXPECT_EQ(cal_setValueToDb(&stored->header), CALTOFAL_OUT_OF_RANGE) << "stored only, and refused all the same";
}

TEST_F(PossibleTest, DemosHaveWhatTheySayIsPossible) {
    size_t judged = 0;
    for (const sandbox::Demo &demo : sandbox::demos()) {
        const auto database = sandbox::openGateway(location(std::string(demo.name)));
        for (const sandbox::Entry &entry :
             sandbox::exportEntries(*database, "Device.", sandbox::View::Running, sandbox::Detail::All)) {
            if (entry.kind == sandbox::Entry::Kind::Parameter && entry.writable == true && !entry.value->empty()) {
                EXPECT_NO_THROW(sandbox::refuseImpossible(*database, *sandbox::keyOf(entry.path), entry.name,
                                                          *entry.type, *entry.value))
                    << demo.name << ": " << entry.fullPath() << " = " << *entry.value;
                ++judged;
            }
        }
    }
    EXPECT_GT(judged, 1000U);
}

} // namespace
