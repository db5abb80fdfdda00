// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using Convert = WifiTest;

std::string text(const PairRow *table, int rows) {
    std::string text;
    for (int i = 0; i < rows; ++i) {
        text += std::string(table[i].sFirst) + "=" + table[i].sSecond + " ";
    }
    return text;
}

TEST_F(Convert, Tables) {
    EXPECT_EQ(
        "WPA-Personal=WPA-PSK WPA2-Personal=WPA2-PSK WPA-WPA2-Personal=WPA2/WPA-PSK "
        "WPA2-Enterprise=WPA2-Enterprise WPA-WPA2-Enterprise=WPA2/WPA-Enterprise WEP-64=WEP WEP-128=WEP None=NONE ",
        text(SecurityType_FapiToUi_Table, 8));
    EXPECT_EQ("wlan0=phy0 wlan1=phy1 wlan2=phy2 wlan3=phy3 ", text(Interface_DevToPhy_Table, 4));
    EXPECT_EQ("2.4GHz=2.4g 5GHz=5g ", text(Interface_FapiToUi_Table, 2));
    const auto expect = [](const char *(*convert)(const char *, int), const PairRow *table, int rows,
                           const char *content) {
        EXPECT_EQ(content, text(table, rows));
        for (int i = 0; i < rows; ++i) {
            const char *ui = convert(table[i].sFirst, 1);
            EXPECT_STREQ(FapiToUi_Str(table[i].sFirst, table, rows), ui);
            EXPECT_STREQ(table[i].sFirst, convert(ui, -1));
        }
        EXPECT_STREQ("ENABLED", convert("ENABLED", 0)); // unknown
        EXPECT_STREQ("ENABLED", convert("ENABLED", 1));
    };
    expect(
        OperatingStandards_ConvStr, WireLessMode_FapiToUi_Table, 12,
        "b=802.11b g=802.11g n=802.11n b,g=802.11b+g g,n=802.11g+n b,g,n=802.11b+g+n a=802.11a n=802.11n ac=802.11ac "
        "a,n=802.11a+n n,ac=802.11n+ac a,n,ac=802.11a+n+ac ");
    expect(BandWidth_ConvStr, BandWidth_FapiToUi_Table, 5, "Auto=auto 20MHz=20 40MHz=40 80MHz=80 160MHz=160 ");
    expect(ExtensionChannel_ConvStr, SideBand_FapiToUi_Table, 3,
           "AboveControlChannel=upper BelowControlChannel=lower Auto=auto ");
    expect(ShortGuardInterval_ConvStr, ShortGuardInterval_FapiToUi_Table, 2, "400nsec=on 800nsec=off ");
    expect(VhtShortGuardInterval_ConvStr, VhtShortGuardInterval_FapiToUi_Table, 2, "true=on false=off ");
    expect(WMMOption_ConvStr, WMM_Option_FapiToUi_Table, 4,
           "AC_Normal=normal AC_Gaming=gaming AC_Streaming=streaming AC_Normal=(null) ");
    expect(Dot11nProtect_ConvStr, Dot11nProtect_FapiToUi_Table, 2, "Enabled=true Disabled=false ");
    // The first row wins, and the row count rules, not the table.
    EXPECT_STREQ("WEP-64", UiToFapi_Str("WEP", SecurityType_FapiToUi_Table, 8));
    EXPECT_STREQ("phy3", DevToPhy_Str("wlan3", Interface_DevToPhy_Table, 4));
    EXPECT_STREQ("wlan3", DevToPhy_Str("wlan3", Interface_DevToPhy_Table, 3));
    EXPECT_EQ("", takeConsole());
}

TEST_F(Convert, NullAndEmptyTexts) {
    EXPECT_EQ(nullptr, BandWidth_ConvStr(nullptr, 1));
    EXPECT_EQ(nullptr, BandWidth_ConvStr(nullptr, 0));
    EXPECT_EQ(vola("ZintuWifiUtil", 13, "FapiToUi_Str") + "Received str is NULL. \n" +
                  vola("ZintuWifiUtil", 42, "UiToFapi_Str") + "Received str is NULL. \n",
              takeConsole());
    const auto expect = [](const char *expected, const char *converted, int line, const std::string &function) {
        EXPECT_STREQ(expected, converted);
        EXPECT_EQ(vola("ZintuWifiUtil", line, function) + "\n\n>>>>>>>>>> " + function +
                      " from parameter is unvalide  <<<<<<<<<<<<<\n\n",
                  takeConsole());
    };
    for (const char *text : {static_cast<const char *>(nullptr), ""}) {
        expect("(null)", WMMOption_ConvStr(text, 1), 520, "WMMOption_ConvStr");
        expect("AC_Normal", WMMOption_ConvStr(text, 0), 520, "WMMOption_ConvStr");
        expect("false", Dot11nProtect_ConvStr(text, 1), 547, "Dot11nProtect_ConvStr");
        expect("Disabled", Dot11nProtect_ConvStr(text, 0), 547, "Dot11nProtect_ConvStr");
    }
}

TEST_F(Convert, Numbers) {
    const auto expect = [](int (*convert)(int), const std::string &rows) {
        expectEach(rows, [&](const std::string &number) { return std::to_string(convert(std::stoi(number))); });
    };
    expect(ConvBeaconInterval, "49=100&50=50&1000=1000&1001=100");
    expect(ConvDtimInterval, "0=1&1=1&100=100&101=1");
    expect(ConvFragmentationThreshold, "999=2346&1000=1000&2346=2346&2347=2346");
    expect(ConvRtsThreshold, "999=2346&1000=1000&2347=2347&2348=2346");
    expect(
        ConvFreqChannel,
        "-2147483648=429496248&2412=1&2484=14&2483=15&2485=-503&5180=36&4909=-18&4910=182&4980=196&4981=-3&45000=8000&"
        "45001=0&58319=0&58320=1&64800=4&64801=0");
    expect(ConvTransmitPower, "101=1&51=1&50=2&26=2&25=3&-1=3");
    for (const auto &[radio, first] : {std::pair{1, 1}, {2, 9}, {0, 9}}) {
        EXPECT_EQ(first, ConvSsidIdxToFapi(radio, 0));
        EXPECT_EQ(7, ConvSsidIdxToUI(radio, first + 7));
        EXPECT_EQ(INT_MIN + first - 1, ConvSsidIdxToFapi(radio, INT_MAX)); // wraps around
        EXPECT_EQ(INT_MAX - first + 1, ConvSsidIdxToUI(radio, INT_MIN));
    }
}

TEST_F(Convert, Words) {
    expectEach("51=high&50=medium&26=medium&25=low&=low",
               [](const auto &text) { return TransmitPower_ConvStr(text.c_str(), 1); });
    expectEach("high=100&medium=50&low=25&me=50&l=25&=100&Low=100&lowest=100",
               [](const auto &text) { return TransmitPower_ConvStr(text.c_str(), 0); });
    EXPECT_EQ(nullptr, TransmitPower_ConvStr(nullptr, 0));
    expectEach("true=1&1=1&TRUE=0&10=0&=0",
               [](const auto &text) { return std::to_string(ConvStrToBool(text.c_str())); });
    EXPECT_STREQ("true", ConvBoolToStr(0x1ff));
    EXPECT_STREQ("false", ConvBoolToStr(0x100)); // the low byte rules
    expectEach("Allow=1&allow=0&Deny=0",
               [](const auto &mode) { return std::to_string(ConvMacACLModeToUI(mode.c_str())); });
    EXPECT_STREQ("Disabled", ConvMacACLModeToFapi(0x100, 1));
    EXPECT_STREQ("Allow", ConvMacACLModeToFapi(1, 0x100));
    EXPECT_STREQ("Deny", ConvMacACLModeToFapi(-1, 0));
}

TEST_F(Convert, MacAddresses) {
    // The last three are what the rule lets through: the scan stops behind twelve digits, and a separator behind one
    // digit makes a broken text whole.
    expectEach(
        "=0&0:011:22:33:44:55=0&:00:11:22:33:44:55=0&00:11:22:33:44:5=0&00:11:22:33:44:55:=0&00:11:22:33:44:55 =0&"
        "0011:2233:4455=0&0011223344556=0&g001122334455=0&00:11:22:33:44:55=1&00-11:22-33-aA-fF=1&001122334455=1&"
        "001122334455:=1&001122334455-rest=1&0x:01122334455=1",
        [](const auto &text) { return std::to_string(isValidMacAddress(text.c_str())); });
    struct Row {
        const char *left, *right;
        int count, result;
    };
    for (const Row &row : {Row{"aB", "Ab", 2, 0}, Row{"a", "b", 1, -1}, Row{"b{", "BZ", 2, 1},
                           Row{"ba", "ab", 2, -1},               // the last difference counts
                           Row{"a", "b", 2, 0},                  // unless both have ended
                           Row{"a", "ab", 2, -1},                //
                           Row{"AA:bb", "aa:BB-and more", 5, 0}, // nothing behind the count does
                           Row{nullptr, "a", 1, -1}, Row{"a", nullptr, 1, -1}, Row{"a", "a", 0, -1}}) {
        EXPECT_EQ(row.result, my_strnicmp(row.left, row.right, row.count));
    }
}

TEST_F(Convert, Hex) {
    expectEach("=.&4=.&48656C6c6f=Hello.&486=H.&g0=\xf0.&4:=\xff.", [](const auto &hex) {
        std::string out(hex.size() / 2 + 2, '.');
        EXPECT_EQ(1, ConvHexDecToCharStr(hex.c_str(), out.data()));
        return out.c_str() + out.substr(hex.size() / 2 + 1); // behind the terminator nothing is written
    });
    char out[9] = "xxxxxxxx";
    EXPECT_EQ(1, ConvCharStrToHexDec("\x00\x7f\x80\xff", 4, out));
    EXPECT_STREQ("007f80ff", out);
    EXPECT_EQ(1, ConvCharStrToHexDec("a", -1, out));
    EXPECT_STREQ("", out);
}

} // namespace
