// SPDX-License-Identifier: MIT
// Multi-WAN, WAN interface name, look-up by value, IPTV, address checks.
#include "platform.h"

#include <arpa/inet.h>

using namespace test;

namespace {

using MultiWan = LibraryTest;
constexpr char kMultiWan[] = "Device.X_LANTIQ_COM_Multiwan.";
constexpr char kMultiWanConnection[] = "Device.X_LANTIQ_COM_NwHardware.WANConnection";
constexpr char kBridge[] = "Device.X_ZINTU_Multi_Bridge.";

std::vector<Object> multiWan(const std::string &type, const std::string &first, const std::string &second) {
    const std::string one = std::string(kMultiWan) + "Multiwan.1";
    return {object(one, {"Enabled=true"}),
            object(one + ".Type", {"Name=" + type}),
            object(one + ".WANConnections.1", {"Interface=" + first}),
            object(one + ".WANConnections.2", {"Interface=" + second}),
            object(one + ".WANConnections.2.TCPPing", {"Interface=no"}),
            object(one + ".Type.x", {"Name=no"})};
}

TEST_F(MultiWan, Kinds) {
    struct Row {
        const char *interface, *mode; // mode nullptr: no look-up
        int kind;
    };
    const Row rows[] = {{"w900", nullptr, 0},       {"w901x", nullptr, 1}, {"w902", nullptr, 2}, {"wan", "ETHERNET", 0},
                        {"wan50", "TETHER_USB", 2}, {"wan", "eth", 1},     {"wan", "PPP", 1},    {"gone", "", 1}};
    for (const Row &row : rows) {
        resetPlatform();
        platform().on(kMultiWan, multiWan("FailOverX", row.interface, "w901"));
        if (row.mode && *row.mode) {
            platform().on(kMultiWanConnection, {object("C"), object("C", {std::string("ConnMode=") + row.mode})});
        }
        ZintuMultiWanInfo info = {};
        EXPECT_EQ(0, ZintuGet_MultiWanInfo(&info));
        EXPECT_EQ(1, info.nEnabled);
        EXPECT_EQ(1, info.nFailOver);
        EXPECT_EQ(row.kind, info.nWan1Type) << row.interface;
        EXPECT_EQ(1, info.nWan2Type);
        EXPECT_STREQ(row.interface, info.sWan1Interface);
        EXPECT_STREQ("w901", info.sWan2Interface);
        ASSERT_EQ(row.mode ? 2U : 1U, platform().calls().size());
        if (row.mode) {
            EXPECT_EQ("getValue 1/0x100/2 " + std::string(kMultiWanConnection) + "(UciSection=" + row.interface + ")",
                      platform().callTexts()[1]);
        }
    }
}

TEST_F(MultiWan, MissingParameters) {
    std::vector<Object> answer = multiWan("failover", "w900", "w901");
    answer[0].params.clear();
    platform().on(kMultiWan, answer);
    ZintuMultiWanInfo info = {5, 5, 5, 5, "x", "y"};
    EXPECT_EQ(0, ZintuGet_MultiWanInfo(&info));
    EXPECT_EQ(-1, info.nEnabled);
    EXPECT_EQ(5, info.nFailOver);
    platform().on(kMultiWan, {answer[1], object(std::string(kMultiWan) + "Multiwan.1", {"Enabled=no"})});
    EXPECT_EQ(0, ZintuGet_MultiWanInfo(&info));
    EXPECT_EQ(0, info.nEnabled);
    EXPECT_EQ(0, info.nFailOver);
    EXPECT_EQ(5, info.nWan1Type);
    takeConsole();
    EXPECT_EQ(-1, ZintuGet_MultiWanInfo(&info));
    EXPECT_EQ("\n\n\t[ZintuGet_MultiWanInfo : 1875] (-1)faltocal_send_main is Failure\n", takeConsole());
}

TEST_F(MultiWan, WanInterfaceName) {
    const auto tag = [](int line) { return vola("ZintuNetworkGet", line, "zintu_GetWanIfName"); };
    const std::string enter = tag(2012) + ">>>>>>>>>> Entering <<<<<<<<<<<<<\n";
    const std::string end = tag(2039) + ">>>>>>>>>> End(-1)  :: <<<<<<<<<<<<<\n";
    const auto network = [](const std::string &interface) {
        platform().on("Device.X_ZINTU_CurrentNetwork", {object("N", {"WanIpInterface=" + interface})});
    };
    char name[PARAM_VALUE_SIZE] = "#";
    network("Device.IP.Interface.3");
    platform().on("Device.IP.Interface.3", {object("I", {"Name=" + std::string(300, 'n')})});
    EXPECT_EQ(0, zintu_GetWanIfName(name));
    EXPECT_EQ(std::string(300, 'n'), name);
    EXPECT_EQ("getValue 1/0x100/2 Device.IP.Interface.3(Name)", platform().callTexts().back());
    EXPECT_EQ(enter + tag(2039) + ">>>>>>>>>> End(0)  :: <<<<<<<<<<<<<\n", takeConsole());

    network("Device.PPP.Interface.3");
    EXPECT_EQ(-1, zintu_GetWanIfName(name));
    EXPECT_EQ(enter + tag(2035) + "ZintuGet_DefGw is Failure \n" + end, takeConsole());

    network("Device.IP.Interface.3");
    EXPECT_EQ(-1, zintu_GetWanIfName(name));
    EXPECT_EQ(enter + "\n\n\t[zintu_GetWanIfName : 2018] (-202)faltocal_SendMultiObj is Failure \n" + end,
              takeConsole());

    network("Device.IP.Interface.3");
    platform().on("Device.IP.Interface.3", {object("I", {"Name="}), object("I", {"Name=late"})});
    EXPECT_EQ(-1, zintu_GetWanIfName(name));
    EXPECT_EQ(enter + tag(2031) + "Can't find WanIfName\n" + end, takeConsole());
}

TEST_F(MultiWan, ValueFromDatabase) {
    const auto tag = [](int line) { return vola("ZintuNetworkGet", line, "zintu_GetValueFromDBInfo"); };
    const auto trace = [&](const std::string &between, const std::string &outcome) {
        return tag(2055) + ">>>>>>>>>> Entering <<<<<<<<<<<<<\n" + between + tag(2090) + ">>>>>>>>>> End(" + outcome +
               ")  :: <<<<<<<<<<<<<\n";
    };
    const std::string invalid = "\n\n\t[zintu_GetValueFromDBInfo : ";
    char name[128] = "#";
    char value[128] = "#";
    EXPECT_EQ(-1, zintu_GetValueFromDBInfo("D.", "F", nullptr, "W", name, value));
    EXPECT_EQ(trace(invalid + "2058] invalid input\n", "-1 Not Found"), takeConsole());
    EXPECT_EQ(-1, zintu_GetValueFromDBInfo("D.", "F", "v", "W", nullptr, nullptr));
    EXPECT_EQ(trace(invalid + "2061] invalid input\n", "-1 Not Found"), takeConsole());

    const std::string longText(200, 't');
    platform().on("D.", {object("D.1", {"F=v"}), object("D.2", {"F=v", "W=" + longText}), object("D.3", {"W=late"})});
    EXPECT_EQ(0, zintu_GetValueFromDBInfo("D.", "F", "v", "W", name, value));
    EXPECT_STREQ("D.2", name);
    EXPECT_EQ(longText.substr(0, 127), value);
    EXPECT_EQ(trace(vola("FaltoCal", 1357, "zintu_GetParamFromObjUnit") + "Can't find Param(W) in Obj\n", "0 Found"),
              takeConsole());

    platform().on("D.", Reply{-208});
    EXPECT_EQ(-1, zintu_GetValueFromDBInfo("D.", "F", "v", "W", nullptr, value));
    EXPECT_EQ(trace("", "0 Not Found"), takeConsole());
    EXPECT_EQ(-1, zintu_GetValueFromDBInfo("D.", "F", "v", "W", name, nullptr));
    EXPECT_EQ(trace(invalid + "2084] (-202)faltocal_SendMultiObj is Failure\n", "-1 Not Found"), takeConsole());
}

TEST_F(MultiWan, IptvBridge) {
    const std::string bridge = std::string(kBridge) + "Bridge.";
    const auto top = [](const std::string &enable) {
        return object("Device.X_ZINTU_Multi_Bridge", {"Enable=" + enable});
    };
    const auto iptv = [&](const std::string &description, const std::string &ports) {
        return object(bridge + "2", {"Description=" + description, "MemberPort=" + ports});
    };
    struct Row {
        std::vector<Object> answer;
        int result;
    };
    const Row rows[] = {
        {{top("1x"), iptv("IPTV box", "lan4")}, 1},
        {{top("TRUE"), iptv("IPTV", "lan4"), iptv("IPTV2", "")}, 0}, // the later bridge overrides
        {{top("no"), iptv("IPTV", "lan4")}, 0},
        {{top("1"), iptv("iptv", "lan4"), object(bridge + "3", {"Description=IPTV"})}, -1},
        {{iptv("IPTV", "lan4")}, -1},
        {{top("1"), object(std::string(kBridge) + "Other", {"Strange=1"}), iptv("IPTV", "p")}, 1},
        {{object("Device.Other", {"Enable=1"}), iptv("IPTV", "p")}, -1},
        {{}, -1},
    };
    for (const Row &row : rows) {
        platform().on(kBridge, row.answer);
        EXPECT_EQ(row.result, Zintu_isEnabledIptvStb());
    }
    takeConsole();
    EXPECT_EQ(-1, Zintu_isEnabledIptvStb());
    EXPECT_EQ("\n\n\t[Zintu_isEnabledIptvStb : 1811] (-1)faltocal_send_main is Failure\n", takeConsole());
}

TEST(Addresses, Conversions) {
    EXPECT_EQ(htonl(0xC0A80101), IPConvertTouint("192.168.1.1"));
    EXPECT_EQ(0U, IPConvertTouint(nullptr));
    EXPECT_EQ(UINT32_MAX, IPConvertTouint("abc"));
    for (const auto &[text, valid] :
         {std::pair{"::1", 0}, {"2001:db8::", 0}, {"", -1}, {"1.2.3.4", -1}, {"fe80::1%lan", -1}}) {
        EXPECT_EQ(valid, validationCheck_IPv6Addr(text)) << text;
    }
    EXPECT_EQ(-1, validationCheck_IPv6Addr(nullptr));
    EXPECT_STREQ("Device.IP.Interface.3.", ZINTU_DEF_IP_INTERFACE[0]);
    EXPECT_STREQ("Device.IP.Interface.21.", ZINTU_DEF_IP_INTERFACE[18]);
}

} // namespace
