// SPDX-License-Identifier: MIT
// Operation mode, default gateway, UCI sections, lower layers.
#include "platform.h"

using namespace test;

namespace {

using Gateway = LibraryTest;
constexpr char kNetwork[] = "Device.X_ZINTU_CurrentNetwork";
constexpr char kConnection[] = "Device.X_LANTIQ_COM_NwHardware.WANConnection";

// What a page prints about a failed request, line numbers aside.
std::string failure(const std::string &function, int code, const std::string &text) {
    return "\n\n\t[" + function + " : 0] (" + std::to_string(code) + ")" + text;
}

TEST_F(Gateway, OperationMode) {
    struct Row {
        std::vector<Object> answer;
        int mode;
    };
    const Row rows[] = {
        {{object("N", {"OperationMode=5"})}, 5},
        {{object("N", {"OperationMode="}), object("N", {"OperationMode=7"}), object("N", {"OperationMode=9"})}, 7},
        {{object("N", {"OperationMode=abc"})}, 0},
        {{object("N", {"Other=1"})}, -1},
        {{}, -1},
    };
    for (const Row &row : rows) {
        platform().on(kNetwork, row.answer);
        EXPECT_EQ(row.mode, ZintuGet_OperMode());
        EXPECT_EQ("getValue 1/0x4/32 Device.X_ZINTU_CurrentNetwork", platform().callTexts().back());
    }
    takeConsole();
    EXPECT_EQ(-1, ZintuGet_OperMode());
    EXPECT_EQ(failure("ZintuGet_OperMode", -1, "faltocal_send_main is Failure \n"), withoutLines(takeConsole()));
}

TEST_F(Gateway, DefaultGatewayValuesRunOnButNeverPastTheRecord) {
    platform().on(kNetwork, {object("N", {"WanIpInterface=Device.IP.Interface.3", "WanIpType=dynamic",
                                          "WanLinkType=" + std::string(20, 'l'), "PppStaticDNS1=1.1.1.1",
                                          "PppStaticDNS2=2.2.2.2", "PppStaticAddress=9.9.9.9", "wanIpType=x"}),
                             object("N", {"WanIpType=ppp", "Ipv4Mode=auto"})});
    ZintuWanInfo info = {};
    EXPECT_EQ(0, ZintuGet_DefGw(&info));
    EXPECT_STREQ("Device.IP.Interface.3", info.sWanIpInterface);
    EXPECT_STREQ("pppamic", info.sWanIpType);
    EXPECT_EQ(std::string(16, 'l'), std::string(info.sWanLinkType, 16));
    EXPECT_STREQ("llll", info.sOperMode);
    EXPECT_STREQ("auto", info.sIpv4Mode);
    EXPECT_STREQ("1.1.1.1", info.sDNS1);
    EXPECT_STREQ("2.2.2.2", info.sDNS2);
    EXPECT_STREQ("9.9.9.9", info.sPppStaticAddress);

    struct {
        ZintuWanInfo info;
        char guard[PARAM_VALUE_SIZE];
    } bounded = {};
    platform().on(kNetwork, {object("N", {"PppStaticDNS2=" + std::string(1000, 'd'),
                                          "WanIpInterface=" + std::string(1000, 'w')})});
    EXPECT_EQ(0, ZintuGet_DefGw(&bounded.info));
    EXPECT_EQ(0, bounded.guard[0]);
    EXPECT_EQ(-1, ZintuGet_DefGw(&info));
    EXPECT_EQ(failure("ZintuGet_DefGw", -1, "faltocal_send_main is Failure \n"), withoutLines(takeConsole()));
}

TEST_F(Gateway, UciSectionByConnMode) {
    char section[128] = "#";
    EXPECT_EQ(-1, ZintuGet_UciSectionByConnMode(nullptr, section));
    EXPECT_EQ(-1, ZintuGet_UciSectionByConnMode("ppp", nullptr));
    EXPECT_EQ(-1, ZintuGet_UciSectionByConnMode("", section));
    EXPECT_TRUE(platform().calls().empty());

    platform().on(kConnection, {object("1", {"ConnMode=ETH", "UciSection=no"}), object("2", {"ConnMode=xppp"}),
                                object("3", {"ConnMode=pppoe", "UciSection="}),
                                object("4", {"ConnMode=pppoa", "UciSection=" + std::string(200, 's')}),
                                object("5", {"ConnMode=ppp", "UciSection=late"})});
    EXPECT_EQ(0, ZintuGet_UciSectionByConnMode("ppp", section));
    EXPECT_EQ(std::string(127, 's'), section);
    EXPECT_EQ("getValue 1/0x100/2 " + std::string(kConnection) + "(ConnMode=ppp)", platform().callTexts()[0]);

    EXPECT_EQ("", takeConsole());
    platform().on(kConnection, Reply{-208});
    EXPECT_EQ(-1, ZintuGet_UciSectionByConnMode("ppp", section));
    EXPECT_EQ("", takeConsole());
    EXPECT_EQ(-1, ZintuGet_UciSectionByConnMode("ppp", section));
    EXPECT_EQ(failure("ZintuGet_UciSectionByConnMode", -202, "faltocal_SendMultiObj is Failure\n"),
              withoutLines(takeConsole()));
}

TEST_F(Gateway, UciSectionOfDefaultGateway) {
    const auto answerAll = [](const std::vector<Object> &connections) {
        platform().on(kNetwork, {object("N", {"WanIpInterface=no"}), object("N"),
                                 object("N", {"WanIpInterface=Device.IP.Interface.3"})});
        platform().on("Device.IP.Interface.3", {object("I", {"Name=wrong"}), object("I", {"Name=eth1"})});
        platform().on(std::string(kConnection) + ".", connections);
    };
    char section[129];
    memset(section, '#', sizeof(section));
    answerAll({object("1", {"ConnectionName=eth1_1", "UciSection=no"}), object("2", {"ConnectionName=eth1"}),
               object("3", {"ConnectionName=eth1", "UciSection="}),
               object("4", {"ConnectionName=eth1", "UciSection=wan"})});
    EXPECT_EQ(0, ZintuGet_UciSectionOfDefGw(section));
    EXPECT_STREQ("wan", section);
    EXPECT_EQ('\0', section[126]);
    EXPECT_EQ('#', section[127]);
    EXPECT_EQ((std::vector<std::string>{"getValue 1/0x4/32 Device.X_ZINTU_CurrentNetwork(WanIpInterface)",
                                        "getValue 1/0x4/32 Device.IP.Interface.3(Name)",
                                        "getValue 1/0x4/32 Device.X_LANTIQ_COM_NwHardware.WANConnection."}),
              platform().callTexts());
    EXPECT_TRUE(withoutLines(takeConsole())
                    .ends_with("[ZINTU VOLA FAL] (ZintuNetworkGet:0, ZintuGet_UciSectionOfDefGw) UciSection[wan]\n"));

    answerAll({object("1", {"ConnectionName=eth", "UciSection=no"})});
    EXPECT_EQ(-1, ZintuGet_UciSectionOfDefGw(section));
    EXPECT_EQ(-1, ZintuGet_UciSectionOfDefGw(nullptr));
    takeConsole();
    platform().on(kNetwork, {object("N", {"WanIpInterface=first"}), object("N", {"WanIpInterface="})});
    EXPECT_EQ(-1, ZintuGet_UciSectionOfDefGw(section)) << "the last one wins, empty or not";
    EXPECT_EQ("", takeConsole());
    EXPECT_EQ(-1, ZintuGet_UciSectionOfDefGw(section));
    EXPECT_EQ(failure("ZintuGet_UciSectionOfDefGw", -1, "faltocal_send_main is Failure\n"),
              withoutLines(takeConsole()));
}

TEST_F(Gateway, LowerLayers) {
    char layers[129];
    memset(layers, '#', sizeof(layers));
    EXPECT_EQ(-1, ZintuGet_LowerLayers(nullptr, layers));
    EXPECT_EQ("\n\n\t[ZintuGet_LowerLayers : 0] input param is NULL \n", withoutLines(takeConsole()));
    platform().on("Device.X", {object("1", {"Other=1"})});
    EXPECT_EQ(0, ZintuGet_LowerLayers("Device.X", layers));
    EXPECT_EQ('#', layers[0]);
    platform().on("Device.X", {object("1"), object("2", {"LowerLayers="}), object("3", {"LowerLayers=late"})});
    EXPECT_EQ(0, ZintuGet_LowerLayers("Device.X", layers));
    EXPECT_EQ(std::string(128, '\0'), std::string(layers, 128));
    platform().on("Device.X", {object("1", {"LowerLayers=" + std::string(200, 'l')})});
    EXPECT_EQ(0, ZintuGet_LowerLayers("Device.X", layers));
    EXPECT_EQ(std::string(128, 'l') + "#", std::string(layers, 129));
    takeConsole();
    EXPECT_EQ(-1, ZintuGet_LowerLayers("Device.X", layers));
    EXPECT_EQ(failure("ZintuGet_LowerLayers", -202, "faltocal_SendMultiObj is Failure \n"),
              withoutLines(takeConsole()));
}

TEST_F(Gateway, EthernetWanObject) {
    const std::pair<std::vector<std::string>, std::string> rows[] = {
        {{"Device.IP.Interface.3", "Device.IP.Interface.3.IPv4Address.1"}, "Device.IP.Interface.3"},
        {{"Device.IP.Interface.3.", "Device.IP.Interface.12"}, "Device.IP.Interface.12"},
        {{"Device.IP.Interface"}, "Device.IP.Interface"},
        {{"Device.IP.Interfac", "Device.Ethernet.Lin.3", "Device.IP.Interface.3.Stats"}, "-"},
        {{}, "-"},
    };
    for (const auto &[names, expected] : rows) {
        std::vector<Object> answer;
        for (const std::string &name : names) {
            answer.push_back(object(name));
        }
        platform().on("Device.IP.Interface", answer);
        char name[128] = "-";
        EXPECT_EQ(expected == "-" ? -1 : 0, ZintuGet_EthWanObjName(name));
        EXPECT_EQ(expected, name);
    }
    EXPECT_EQ("getValue 1/0x100/2 Device.IP.Interface(Alias=cpe-EthWan-IPIntf-1)", platform().callTexts().back());
    char name[128];
    EXPECT_EQ(-1, ZintuGet_EthWanObjName(name));
    EXPECT_EQ(-1, ZintuGet_EthWanObjName(nullptr));
    EXPECT_EQ("", takeConsole());
}

} // namespace
