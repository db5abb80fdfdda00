// SPDX-License-Identifier: MIT
// DSL line and modes, ATM link, IPv6 prefix delegation.
#include "platform.h"

#include <set>

using namespace test;

namespace {

using Dsl = LibraryTest;
constexpr char kDslNetwork[] = "Device.X_ZINTU_CurrentNetwork";

TEST_F(Dsl, Line) {
    platform().on("Device.DSL.Line.1.",
                  {object("L", {"Status=Up", "CurrentProfile=17a", "UpstreamMaxBitRate=40000",
                                "DownstreamMaxBitRate=100000", "UpstreamNoiseMargin=61", "DownstreamNoiseMargin=-3"}),
                   object("L", {"UpstreamMaxBitRate=", "CurrentProfile=" + std::string(256, 'p')})});
    platform().on("Device.DSL.Channel.1.", {object("C", {"UpstreamCurrRate=39000", "DownstreamCurrRate=abc"})});
    platform().on("Device.DSL.Line.1.TestParams.", {object("T", {"LATNds=1,2,3", "LATNus=" + std::string(32, 'x')})});
    platform().on("Device.DSL.Channel.1.Stats.Total.", {object("S", {"XTURCRCErrors=5", "XTUCCRCErrors=6"})});
    ZintuDslLineInfo info = {};
    info.nDownstreamCurrRate = 9;
    EXPECT_EQ(0, ZintuGet_LineInfo(&info));
    EXPECT_STREQ("connected", info.sStatus);
    EXPECT_STREQ("17a", info.sCurrentProfile);
    EXPECT_STREQ("1,2,3", info.sLATNds);
    EXPECT_STREQ("", info.sLATNus);
    EXPECT_EQ((std::vector<int32_t>{39000, 0, 40000, 100000, 61, -3, 5, 6}),
              (std::vector<int32_t>{info.nUpstreamCurrRate, info.nDownstreamCurrRate, info.nUpstreamMaxBitRate,
                                    info.nDownstreamMaxBitRate, info.nUpstreamNoiseMargin, info.nDownstreamNoiseMargin,
                                    info.nXTURCRCErrors, info.nXTUCCRCErrors}));
    EXPECT_EQ(
        (std::vector<std::string>{"getValue 1/0x4/32 Device.DSL.Line.1.", "getValue 1/0x4/32 Device.DSL.Channel.1.",
                                  "getValue 1/0x4/32 Device.DSL.Line.1.TestParams.",
                                  "getValue 1/0x4/32 Device.DSL.Channel.1.Stats.Total."}),
        platform().callTexts());
    EXPECT_EQ("", takeConsole());
}

TEST_F(Dsl, StatusIsJudgedInTheField) {
    struct Row {
        const char *before, *value, *after;
    };
    const Row rows[] = {
        {"", "Up", "connected"},
        {"", "NoSignal", "disconnected"},
        {"", "up", "disconnected"},
        {"", "", "disconnected"},
        {"xxxUp", "No", "connected"},
        {"kept", "EstablishingLink", "kept"},
        {"0123456789abcde", "Up", "connected9abcde"},
    };
    for (const Row &row : rows) {
        platform().on("Device.DSL.Line.1.", {object("L", {std::string("Status=") + row.value})});
        ZintuDslLineInfo info = {};
        strcpy(info.sStatus, row.before);
        EXPECT_EQ(-1, ZintuGet_LineInfo(&info)) << "the second request fails, the first has filled";
        EXPECT_STREQ(row.after, info.sStatus);
    }
    EXPECT_TRUE(
        withoutLines(takeConsole()).ends_with("\n\n\t[ZintuGet_LineInfo : 0] (-1)faltocal_SendMultiObj is Failure \n"));
}

TEST_F(Dsl, TheTraceTellsTheFailedRequestsApart) {
    std::set<std::string> traces;
    for (int n = 1; n <= 4; ++n) {
        platform().otherwise({});
        platform().failSend(n, -1);
        ZintuDslLineInfo info = {};
        EXPECT_EQ(-1, ZintuGet_LineInfo(&info));
        traces.insert(takeConsole());
    }
    EXPECT_EQ(4U, traces.size());
}

TEST_F(Dsl, Modes) {
    platform().on("Device.DSL.X_LANTIQ_COM_Config", {object("C", {"XTSE_Modes=1,4,10,11,0,x,-1,,9z"}),
                                                     object("C", {"XTSE_Modes=2," + std::string(300, '3')})});
    int32_t modes[10] = {0, 0, 5};
    EXPECT_EQ(0, ZintuGet_DslMode(modes));
    EXPECT_EQ((std::vector<int32_t>{1, 0, 5, 1, 0, 0, 0, 0, 1, 1}), std::vector<int32_t>(modes, modes + 10));
    EXPECT_EQ(-1, ZintuGet_DslMode(modes));
    EXPECT_EQ("\n\n\t[ZintuGet_DslMode : 0] (-1)faltocal_send_main is Failure \n", withoutLines(takeConsole()));
    EXPECT_STREQ("ADSL2 AnnexM", DEF_DSL_MODE[6]);
}

TEST_F(Dsl, AtmLink) {
    struct Row {
        std::vector<std::string> link;
        int vpi, vci;
    };
    const Row rows[] = {
        {{"DestinationAddress=8/35/1"}, 8, 35},
        {{"DestinationAddress=8"}, -7, -7},
        {{"DestinationAddress=", "DestinationAddress=" + std::string(30, '1') + "/2", "DestinationAddress=x//36"},
         0,
         36},
        {{}, -7, -7},
    };
    for (const Row &row : rows) {
        platform().on("Device.ATM.Link.1.", {object("A", row.link)});
        platform().on("Device.ATM.Link.1.QoS.", {object("Q", {"QoSClass=UBR", "QoSClass=late"})});
        ZintuWanInfo info = {};
        info.nAtmVpi = info.nAtmVci = -7;
        strcpy(info.sAtmQoSClass, "VBR-rt");
        EXPECT_EQ(0, ZintuGet_AtmInfo(&info));
        EXPECT_EQ(row.vpi, info.nAtmVpi);
        EXPECT_EQ(row.vci, info.nAtmVci);
        EXPECT_STREQ("UBR-rt", info.sAtmQoSClass);
    }
    ZintuWanInfo info = {};
    takeConsole();
    EXPECT_EQ(-1, ZintuGet_AtmInfo(&info));
    EXPECT_EQ("\n\n\t[ZintuGet_AtmInfo : 1475] (-1)faltocal_send_main is Failure\n", takeConsole());
    platform().on("Device.ATM.Link.1.", {object("A", {"DestinationAddress=1/2"})});
    EXPECT_EQ(-1, ZintuGet_AtmInfo(&info));
    EXPECT_EQ("\n\n\t[ZintuGet_AtmInfo : 1513] (-1)faltocal_send_main is Failure\n", takeConsole());
    EXPECT_EQ(2, info.nAtmVci);
}

TEST_F(Dsl, PrefixDelegation) {
    struct Row {
        std::vector<Object> answer;
        int expected;
    };
    const Row rows[] = {
        {{object("N", {"EnableIpv6PD=true"}), object("N", {"EnableIpv6PD=false"})}, 1},
        {{object("N", {"EnableIpv6PD=nottrue"})}, 1},
        {{object("N", {"EnableIpv6PD=True", "EnableIpv6PDx=true"})}, 0},
        {{}, 0},
    };
    for (const Row &row : rows) {
        platform().on(kDslNetwork, row.answer);
        EXPECT_EQ(row.expected, ZintuGet_IPv6PD());
    }
    EXPECT_EQ(-1, ZintuGet_IPv6PD());
    EXPECT_EQ("\n\n\t[ZintuGet_IPv6PD : 1442] (-1)faltocal_send_main is Failure\n", takeConsole());
}

} // namespace
