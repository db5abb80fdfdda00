// SPDX-License-Identifier: MIT
#include "wifi_support.h"

using namespace test;

namespace {

using Convert = WifiTest;

struct Setting {
    const char *(*convert)(const char *, int);
    const PairRow *table;
    int rows;
};

constexpr Setting kSettings[] = {
    {OperatingStandards_ConvStr, WireLessMode_FapiToUi_Table, 12},
    {BandWidth_ConvStr, BandWidth_FapiToUi_Table, 5},
    {ExtensionChannel_ConvStr, SideBand_FapiToUi_Table, 3},
    {ShortGuardInterval_ConvStr, ShortGuardInterval_FapiToUi_Table, 2},
    {VhtShortGuardInterval_ConvStr, VhtShortGuardInterval_FapiToUi_Table, 2},
    {WMMOption_ConvStr, WMM_Option_FapiToUi_Table, 4},
    {Dot11nProtect_ConvStr, Dot11nProtect_FapiToUi_Table, 2},
};

template <size_t Rows>
std::string text(const PairRow (&table)[Rows]) {
    std::string text;
    for (const PairRow &row : table) {
        text += std::string(row.sFirst) + "=" + row.sSecond + " ";
    }
    return text;
}

TEST_F(Convert, Tables) {
    EXPECT_EQ("Enabled=true Disabled=false ", text(Dot11nProtect_FapiToUi_Table));
    EXPECT_EQ("AC_Normal=normal AC_Gaming=gaming AC_Streaming=streaming AC_Normal=(null) ",
              text(WMM_Option_FapiToUi_Table));
    EXPECT_EQ("WPA-Personal=WPA-PSK WPA2-Personal=WPA2-PSK WPA-WPA2-Personal=WPA2/WPA-PSK "
              "WPA2-Enterprise=WPA2-Enterprise WPA-WPA2-Enterprise=WPA2/WPA-Enterprise WEP-64=WEP WEP-128=WEP "
              "None=NONE ",
              text(SecurityType_FapiToUi_Table));
    EXPECT_EQ("true=on false=off ", text(VhtShortGuardInterval_FapiToUi_Table));
    EXPECT_EQ("400nsec=on 800nsec=off ", text(ShortGuardInterval_FapiToUi_Table));
    EXPECT_EQ("AboveControlChannel=upper BelowControlChannel=lower Auto=auto ", text(SideBand_FapiToUi_Table));
    EXPECT_EQ("Auto=auto 20MHz=20 40MHz=40 80MHz=80 160MHz=160 ", text(BandWidth_FapiToUi_Table));
    EXPECT_EQ("b=802.11b g=802.11g n=802.11n b,g=802.11b+g g,n=802.11g+n b,g,n=802.11b+g+n a=802.11a n=802.11n "
              "ac=802.11ac a,n=802.11a+n n,ac=802.11n+ac a,n,ac=802.11a+n+ac ",
              text(WireLessMode_FapiToUi_Table));
    EXPECT_EQ("wlan0=phy0 wlan1=phy1 wlan2=phy2 wlan3=phy3 ", text(Interface_DevToPhy_Table));
    EXPECT_EQ("2.4GHz=2.4g 5GHz=5g ", text(Interface_FapiToUi_Table));
}

TEST_F(Convert, EverySettingOverItsWholeTable) {
    const char *unknown = "ENABLED";
    for (const Setting &setting : kSettings) {
        for (int i = 0; i < setting.rows; ++i) {
            const PairRow &row = setting.table[i];
            const char *ui = setting.convert(row.sFirst, 1);
            EXPECT_STREQ(FapiToUi_Str(row.sFirst, setting.table, setting.rows), ui);
            EXPECT_STREQ(row.sFirst, setting.convert(row.sSecond, 0));
            EXPECT_STREQ(row.sFirst, setting.convert(ui, -1));
        }
        EXPECT_EQ(unknown, setting.convert(unknown, 1));
        EXPECT_EQ(unknown, setting.convert(unknown, 0));
    }
    EXPECT_EQ("", takeConsole());
}

TEST_F(Convert, FirstRowWins) {
    EXPECT_STREQ("AC_Normal", WMMOption_ConvStr("(null)", 0));
    EXPECT_STREQ("802.11n", OperatingStandards_ConvStr("n", 1));
    EXPECT_STREQ("WEP-64", UiToFapi_Str("WEP", SecurityType_FapiToUi_Table, 8));
    // The row count rules, not the table.
    EXPECT_STREQ("phy3", DevToPhy_Str("wlan3", Interface_DevToPhy_Table, 4));
    EXPECT_STREQ("wlan3", DevToPhy_Str("wlan3", Interface_DevToPhy_Table, 3));
    EXPECT_STREQ("wlan0", FapiToUi_Str("wlan0", Interface_DevToPhy_Table, -1));
}

TEST_F(Convert, NullAndEmptyTexts) {
    const auto invalid = [](int line, const std::string &function) {
        return vola("ZintuWifiUtil", line, function) + "\n\n>>>>>>>>>> " + function +
               " from parameter is unvalide  <<<<<<<<<<<<<\n\n";
    };
    EXPECT_EQ(nullptr, BandWidth_ConvStr(nullptr, 1));
    EXPECT_EQ(vola("ZintuWifiUtil", 13, "FapiToUi_Str") + "Received str is NULL. \n", takeConsole());
    EXPECT_EQ(nullptr, BandWidth_ConvStr(nullptr, 0));
    EXPECT_EQ(vola("ZintuWifiUtil", 42, "UiToFapi_Str") + "Received str is NULL. \n", takeConsole());
    for (const char *text : {static_cast<const char *>(nullptr), ""}) {
        EXPECT_STREQ("(null)", WMMOption_ConvStr(text, 1));
        EXPECT_STREQ("AC_Normal", WMMOption_ConvStr(text, 0));
        EXPECT_EQ(invalid(520, "WMMOption_ConvStr") + invalid(520, "WMMOption_ConvStr"), takeConsole());
        EXPECT_STREQ("false", Dot11nProtect_ConvStr(text, 1));
        EXPECT_STREQ("Disabled", Dot11nProtect_ConvStr(text, 0));
        EXPECT_EQ(invalid(547, "Dot11nProtect_ConvStr") + invalid(547, "Dot11nProtect_ConvStr"), takeConsole());
    }
}

TEST_F(Convert, Limits) {
    struct Row {
        int (*convert)(int);
        int minimum, maximum, otherwise;
    };
    for (const Row &row :
         {Row{ConvBeaconInterval, 50, 1000, 100}, Row{ConvDtimInterval, 1, 100, 1},
          Row{ConvFragmentationThreshold, 1000, 2346, 2346}, Row{ConvRtsThreshold, 1000, 2347, 2346}}) {
        EXPECT_EQ(row.minimum, row.convert(row.minimum));
        EXPECT_EQ(row.maximum, row.convert(row.maximum));
        EXPECT_EQ(row.otherwise, row.convert(row.minimum - 1));
        EXPECT_EQ(row.otherwise, row.convert(row.maximum + 1));
    }
}

TEST_F(Convert, TransmitPower) {
    const char *words[] = {"high", "medium", "low"};
    for (const auto &[percent, level] :
         {std::pair{"101", 1}, {"51", 1}, {"50", 2}, {"26", 2}, {"25", 3}, {"0", 3}, {"-1", 3}, {"", 3}}) {
        EXPECT_EQ(level, ConvTransmitPower(ConvInt(percent))) << percent;
        EXPECT_STREQ(words[level - 1], TransmitPower_ConvStr(percent, 1));
    }
    for (const auto &[word, percent] : {std::pair{"high", "100"},
                                        {"medium", "50"},
                                        {"low", "25"},
                                        {"me", "50"},
                                        {"l", "25"},
                                        {"", "100"},
                                        {"Low", "100"},
                                        {"lowest", "100"}}) {
        EXPECT_STREQ(percent, TransmitPower_ConvStr(word, 0)) << word;
    }
    EXPECT_EQ(nullptr, TransmitPower_ConvStr(nullptr, 0));
}

TEST_F(Convert, NumbersAndFlags) {
    const std::pair<int, int> channels[] = {{2412, 1},   {2484, 14},  {2483, 15},  {2485, -503}, {5180, 36},
                                            {4909, -18}, {4910, 182}, {4980, 196}, {4981, -3},   {45000, 8000},
                                            {45001, 0},  {58319, 0},  {58320, 1},  {64800, 4},   {64801, 0}};
    for (const auto &[frequency, channel] : channels) {
        EXPECT_EQ(channel, ConvFreqChannel(frequency)) << frequency;
    }
    for (const auto &[radio, first] : {std::pair{1, 1}, {2, 9}, {0, 9}}) {
        EXPECT_EQ(first, ConvSsidIdxToFapi(radio, 0));
        EXPECT_EQ(7, ConvSsidIdxToUI(radio, first + 7));
    }
    for (const auto &[text, flag] : {std::pair{"true", 1}, {"1", 1}, {"TRUE", 0}, {"10", 0}, {"", 0}}) {
        EXPECT_EQ(flag, ConvStrToBool(text)) << text;
    }
    EXPECT_STREQ("true", ConvBoolToStr(0x1ff));
    EXPECT_STREQ("false", ConvBoolToStr(0x100)); // the low byte rules
    EXPECT_EQ(0, ConvMacACLModeToUI("allow"));
    EXPECT_STREQ("Disabled", ConvMacACLModeToFapi(0x100, 1));
    EXPECT_STREQ("Allow", ConvMacACLModeToFapi(1, 0x100));
    EXPECT_STREQ("Deny", ConvMacACLModeToFapi(-1, 0));
    for (const auto &[table, first] :
         {std::pair{SCAN_5G_RetryTime, 25}, {SCAN_24G_RetryTime, 15}, {WPS_RetryTime, 5}}) {
        EXPECT_EQ(first, table[0]);
        EXPECT_EQ(39, std::count(table + 1, table + 40, 3));
    }
}

TEST_F(Convert, MacAddresses) {
    const std::pair<const char *, int> rows[] = {{"00:11:22:33:44:55", 1},
                                                 {"00-11:22-33-aA-fF", 1},
                                                 {"001122334455", 1},
                                                 {"", 0},
                                                 {"0:011:22:33:44:55", 0},
                                                 {":00:11:22:33:44:55", 0},
                                                 {"00:11:22:33:44:5", 0},
                                                 {"00:11:22:33:44:55:", 0},
                                                 {"00:11:22:33:44:55 ", 0},
                                                 {"0011:2233:4455", 0},
                                                 {"0011223344556", 0},
                                                 {"g001122334455", 0},
                                                 // What the rule lets through: the scan stops behind twelve digits, and
                                                 // a separator behind one digit mends a broken text.
                                                 {"001122334455:", 1},
                                                 {"001122334455-rest", 1},
                                                 {"0x:01122334455", 1}};
    for (const auto &[text, valid] : rows) {
        EXPECT_EQ(valid, isValidMacAddress(text)) << text;
    }
}

TEST_F(Convert, CompareIgnoringCase) {
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
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},       {"4", ""},     {"48656C6c6f", "Hello"}, {"486", "H"}, {"0048", std::string("\0H", 2)},
        {"g0", "\xf0"}, {"4:", "\xff"}};
    for (const auto &[hex, bytes] : rows) {
        std::string out(bytes.size() + 1, 'x');
        EXPECT_EQ(1, ConvHexDecToCharStr(hex.c_str(), out.data()));
        EXPECT_EQ(bytes + '\0', out) << hex;
    }
    char out[9] = "xxxxxxxx";
    EXPECT_EQ(1, ConvCharStrToHexDec("\x00\x7f\x80\xff", 4, out));
    EXPECT_STREQ("007f80ff", out);
    EXPECT_EQ(1, ConvCharStrToHexDec("a", -1, out));
    EXPECT_STREQ("", out);
}

} // namespace
