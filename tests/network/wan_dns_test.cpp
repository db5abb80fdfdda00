// SPDX-License-Identifier: MIT
#include "platform.h"

using namespace test;

namespace {

using WanDns = LibraryTest;
constexpr char kClients[] = "Device.DHCPv4.Client.";
constexpr char kServers[] = "Device.DNS.Client.Server.";
constexpr char kFailed[] = "faltocal_SendMultiObj is Failure \n";

Object client(const std::string &servers, const std::string &interface = "Device.IP.Interface.3",
              const std::string &enable = "1", const std::string &status = "Enabled") {
    return object("C", {"Enable=" + enable, "Status=" + status, "Interface=" + interface, "DNSServers=" + servers});
}

Object server(const std::string &address, const std::string &interface = "Device.IP.Interface.3.",
              const std::string &enable = "TRUE", const std::string &type = "Static") {
    return object(
        "S", {"Enable=" + enable, "Status=Disabled", "Interface=" + interface, "DNSServer=" + address, "Type=" + type});
}

struct Row {
    std::vector<Object> answer;
    std::string dns1, dns2;
};

TEST_F(WanDns, FromTheDhcpClient) {
    const Row rows[] = {
        {{client("10.0.0.1,10.0.0.2,10.0.0.3")}, "10.0.0.1", "10.0.0.2,10.0.0"},
        {{client("10.0.0.1")}, "10.0.0.1", ""},
        {{client(",,,")}, ",,,", "0.0.0.0"},
        {{client(""), client("2001:db8::1,10.0.0.9"), client("10.0.0.2,10.0.0.3"), client("10.0.0.4")},
         "10.0.0.2",
         "10.0.0.3"},
        {{client("9", "Device.IP.Interface.30"), client("8", "Device.IP.Interface.3", "0"),
          client("7", "Device.IP.Interface.3", "TrueX", "DISABLED"),
          client("6", "Device.IP.Interface.3.", "TrueX", "ENABLED_")},
         "6",
         ""},
        {{client("123.123.123.123.123")}, "123.123.123.123", ""},
    };
    for (const char *path : {"Device.IP.Interface.3", "Device.IP.Interface.3."}) {
        for (const Row &row : rows) {
            platform().on(kClients, row.answer);
            char dns1[16] = "#";
            char dns2[16] = "#";
            EXPECT_EQ(0, ZintuGet_WanDns(path, dns1, dns2));
            EXPECT_EQ(row.dns1, dns1);
            EXPECT_EQ(row.dns2, dns2);
            EXPECT_EQ("getValue 1/0x100/2 Device.DHCPv4.Client.", platform().callTexts().back());
        }
    }
    EXPECT_EQ("", takeConsole());
}

TEST_F(WanDns, FromTheServerTable) {
    const Row rows[] = {
        {{server("1.1.1.1"), server("2.2.2.2"), server("3.3.3.3")}, "1.1.1.1", "2.2.2.2"},
        {{server("", "Device.IP.Interface.3"), server("::1"), server("4.4.4.4", "Device.IP.Interface.3", "1")},
         "4.4.4.4",
         "#"},
        {{server("1.1.1.1", "Device.IP.Interface.3", "0"), server("1.1.1.1", "")}, "#", "#"},
        {{object("S", {"Enable=1", "Interface=Device.IP.Interface.3", "DNSServer=1.1.1.1"})}, "#", "#"}, // no Status
    };
    for (const Row &row : rows) {
        platform().on(kServers, row.answer);
        char dns1[16] = "#";
        char dns2[16] = "#";
        EXPECT_EQ(0, ZintuGet_WanDns("Device.IP.Interface.3", dns1, dns2));
        EXPECT_EQ(row.dns1, dns1);
        EXPECT_EQ(row.dns2, dns2);
        EXPECT_EQ("getValue 1/0x100/2 Device.DNS.Client.Server.", platform().callTexts().back());
    }
}

TEST_F(WanDns, StaticServers) {
    struct StaticRow {
        Row row;
        int dnsAuto;
    };
    const StaticRow rows[] = {
        {{{server("1.1.1.1", "Device.IP.Interface.3", "0"), server("2.2.2.2"), server("3.3.3.3")},
          "1.1.1.1",
          "2.2.2.2"},
         0},
        {{{server("1.1.1.1")}, "1.1.1.1", "#"}, 0},
        {{{server("1.1.1.1", "Device.IP.Interface.3", "1", "DHCPv4"), server("::1"), server("")}, "#", "#"}, 1},
        {{{server("1.1.1.1", "Device.IP.Interface.3", "1", "STATIC_")}, "1.1.1.1", "#"}, 0},
        {{{}, "#", "#"}, 1},
    };
    for (const StaticRow &expected : rows) {
        platform().on(kServers, expected.row.answer);
        char dns1[16] = "#";
        char dns2[16] = "#";
        int32_t dnsAuto = 7;
        EXPECT_EQ(0, ZintuGet_WanStaticDns("Device.IP.Interface.3.", &dnsAuto, dns1, dns2));
        EXPECT_EQ(expected.dnsAuto, dnsAuto);
        EXPECT_EQ(expected.row.dns1, dns1);
        EXPECT_EQ(expected.row.dns2, dns2);
    }
}

TEST_F(WanDns, FailuresOfTheServerTable) {
    char dns1[16] = "#";
    char dns2[16] = "#";
    int32_t dnsAuto = 7;
    EXPECT_EQ(0, ZintuGet_WanDns("D", dns1, dns2));
    EXPECT_EQ("", takeConsole());
    EXPECT_EQ(0, ZintuGet_WanStaticDns("D", &dnsAuto, dns1, dns2));
    EXPECT_EQ(1, dnsAuto);
    EXPECT_EQ("[ZINTU VOLA FAL] (ZintuNetworkGet:0, ZintuGet_WanStaticDns) no exist (Device.DNS.Client.Server.)\n",
              withoutLines(takeConsole()));
    platform().otherwise({-211});
    EXPECT_EQ(-1, ZintuGet_WanDns("D", dns1, dns2));
    EXPECT_EQ(-1, ZintuGet_WanStaticDns("D", &dnsAuto, dns1, dns2));
    EXPECT_EQ(std::string("\n\n\t[ZintuGet_WanDns : 0] (-211)") + kFailed + "\n\n\t[ZintuGet_WanStaticDns : 0] (-211)" +
                  kFailed,
              withoutLines(takeConsole()));
    const size_t calls = platform().calls().size();
    EXPECT_EQ(-1, ZintuGet_WanDns("", dns1, dns2));
    EXPECT_EQ(-1, ZintuGet_WanDns(nullptr, dns1, dns2));
    EXPECT_EQ(-1, ZintuGet_WanDns("D", dns1, nullptr));
    EXPECT_EQ(-1, ZintuGet_WanStaticDns("D", nullptr, dns1, dns2));
    EXPECT_EQ(calls, platform().calls().size());
    EXPECT_STREQ("#", dns1);
    EXPECT_STREQ("#", dns2);
}

TEST_F(WanDns, A255CharacterPathStillGetsItsDot) {
    const std::string path(255, 'p');
    platform().on(kClients, {client("1.1.1.1", path)});
    char dns1[16] = "#";
    char dns2[16] = "#";
    EXPECT_EQ(0, ZintuGet_WanDns(path.c_str(), dns1, dns2));
    EXPECT_STREQ("1.1.1.1", dns1);
}

} // namespace
