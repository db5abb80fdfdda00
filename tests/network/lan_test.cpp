// SPDX-License-Identifier: MIT
#include "platform.h"

using namespace test;

namespace {

using Lan = LibraryTest;
constexpr char kAddress4[] = "Device.IP.Interface.1.IPv4Address.1";
constexpr char kPool4[] = "Device.DHCPv4.Server.Pool.1";
constexpr char kEthernet[] = "Device.Ethernet.Interface.1";
constexpr char kPool6[] = "Device.DHCPv6.Server.Pool.1.";

const std::string kStart4 = "[ZINTU VOLA FAL] (ZintuNetworkGet:0, ZintuGet_LANv4Info) START_FUNCTION : FAL \n";
const std::string kStart6 = "[ZINTU VOLA FAL] (ZintuNetworkGet:0, ZintuGet_LANv6Info) START_FUNCTION : FAL \n";

TEST_F(Lan, Ipv4) {
    platform().on(
        "Device.Ethernet.Interface.1.",
        {object(kAddress4, {"IPAddress=192.168.100.1/24", "SubnetMask=255.255.255.0"}),
         object(kPool4, {"Enable=TRUE", "MinAddress=192.168.1.2", "MaxAddress=192.168.1.99", "LeaseTime=3600"}),
         object(kEthernet, {"MACAddress=02:00:00:00:00:01:ff"}), object("Device.Other", {"Enable=0"})});
    platform().on("Device.DHCPv4.Server.",
                  {object("Device.DHCPv4.Server", {"Enable=1"}), object("Device.Other", {"Enable=false"})});
    LANv4Info info;
    memset(&info, '#', sizeof(info));
    EXPECT_EQ(0, ZintuGet_LANv4Info(&info));
    EXPECT_EQ(1, info.bDHCPv4Active);
    EXPECT_EQ("192.168.100.1/24", std::string(info.sIPv4Address, 16)) << "a full field has no terminator";
    EXPECT_STREQ("255.255.255.0", info.sIPv4Subnet);
    EXPECT_STREQ("192.168.1.2", info.sDHCPv4StartIP);
    EXPECT_STREQ("192.168.1.99", info.sDHCPv4EndIP);
    EXPECT_EQ("02:00:00:00:00:01:", std::string(info.sMACAddr, 18));
    EXPECT_EQ(3600, info.nLeaseTimeSec);
    EXPECT_EQ(
        (std::vector<std::string>{"getValue 1/0x1004/2 Device.IP.Interface.1.IPv4Address.1.(IPAddress,SubnetMask) "
                                  "Device.DHCPv4.Server.Pool.1.(Enable,MinAddress,MaxAddress,LeaseTime) "
                                  "Device.Ethernet.Interface.1.(MACAddress)",
                                  "getValue 1/0x100/2 Device.DHCPv4.Server.(Enable)"}),
        platform().callTexts());
    EXPECT_EQ(kStart4 + "[ZINTU VOLA FAL] (ZintuNetworkGet:0, ZintuGet_LANv4Info) return pxLANv4Info value : "
                        "sIPv4Address = 192.168.100.1/24 , sIPv4Subnet = 255.255.255.0 , bDHCPv4Active = 1 , "
                        "sDHCPv4StartIP = 192.168.1.2 , sDHCPv4EndIP = 192.168.1.99 , nLeaseTimeSec = 3600 , "
                        "sMACAddr = 02:00:00:00:00:01: \n",
              withoutLines(takeConsole()));
}

TEST_F(Lan, Ipv4ServerSwitchAndFailures) {
    const auto firstAnswer = [] { platform().on("Device.Ethernet.Interface.1.", {object(kPool4, {"Enable=true"})}); };
    firstAnswer();
    platform().on("Device.DHCPv4.Server.", {object("Device.DHCPv4.Server.Pool.2", {"Enable=no"})});
    LANv4Info info = {};
    EXPECT_EQ(0, ZintuGet_LANv4Info(&info));
    EXPECT_EQ(0, info.bDHCPv4Active);

    firstAnswer();
    takeConsole();
    EXPECT_EQ(-202, ZintuGet_LANv4Info(&info)) << "only -1 is a failure";
    EXPECT_NE(std::string::npos, takeConsole().find("return pxLANv4Info value"));

    firstAnswer();
    platform().on("Device.DHCPv4.Server.", Reply{-1});
    LANv4Info untouched = {};
    EXPECT_EQ(-1, ZintuGet_LANv4Info(&untouched));
    EXPECT_EQ(0, untouched.bDHCPv4Active) << "on failure the record holds nothing from the call";
    EXPECT_TRUE(takeConsole().ends_with("FAL \n\n\n\t[ZintuGet_LANv4Info : 1629] faltocal_SendMultiObj is Failure \n"));
    EXPECT_EQ(-1, ZintuGet_LANv4Info(&untouched));
    EXPECT_TRUE(takeConsole().ends_with("\n\n\t[ZintuGet_LANv4Info : 1572] faltocal_send_main_multi_obj is Failure\n"));
    EXPECT_EQ(0, untouched.bDHCPv4Active);
}

TEST_F(Lan, Ipv6) {
    platform().on(kPool6,
                  {object("Device.IPv6",
                          {"Enable=true", "X_LANTIQ_COM_PRI_DNSv6=2001:db8::53", "X_LANTIQ_COM_SEC_DNSv6=2001:db8::54",
                           "X_LANTIQ_COM_V6_DOMAIN_NAME=lan", "X_LANTIQ_COM_IPv6_LANMode=Auto", "X_ZINTU_PDActive=1"}),
                   object("Device.IP.Interface.1.IPv6Address.1", {"IPAddress=fe80::1/60"}),
                   object("Device.RouterAdvertisement.InterfaceSetting.1", {"ManualPrefixes=2001:db8:1::"}),
                   object("Device.DHCPv6.Server.Pool.1.Client.1",
                          {"X_ZINTU_MinAddress=::2", "X_ZINTU_MaxAddress=::9", "X_ZINTU_PreferredLifetime=7200"}),
                   object("Device.Strange", {})});
    LANv6Info info = {};
    EXPECT_EQ(0, ZintuGet_LANv6Info(&info));
    EXPECT_EQ(std::vector<std::string>{"getValue 1/0x1004/2 Device.IPv6. Device.IP.Interface.1.IPv6Address.1. "
                                       "Device.RouterAdvertisement.InterfaceSetting.1. Device.DHCPv6.Server.Pool.1."},
              platform().callTexts());
    EXPECT_EQ(
        kStart6 +
            "[ZINTU VOLA FAL] (ZintuNetworkGet:0, ZintuGet_LANv6Info) Received unhandled object = Device.Strange\n"
            "[ZINTU VOLA FAL] (ZintuNetworkGet:0, ZintuGet_LANv6Info) return pxLANv6Info value : bIPv6Active = 1 , "
            "sIPv6Address = fe80::1 ,  nPrefixLength = 60 , sLANv6Mode = Auto , sDNSv6Primary = 2001:db8::53 , "
            "sDNSv6Secondary = 2001:db8::54 , sDomainNamev6 = lan , sDHCPv6StartIP = ::2 , sDHCPv6EndIP = ::9 , "
            "nLeaseTimeSec = 7200 , bPDActive = 1 , sManualPrefix = 2001:db8:1:: , nManualPrefixLength = 64 \n",
        withoutLines(takeConsole()));
    EXPECT_EQ(-1, ZintuGet_LANv6Info(&info));
    EXPECT_TRUE(takeConsole().ends_with("\n\n\t[ZintuGet_LANv6Info : 1682] faltocal_send_main_multi_obj is Failure\n"));
}

TEST_F(Lan, Ipv6SummaryThatIsCutStaysALine) {
    const std::string longText(127, 'x');
    for (const size_t length : {1U, 50U, 127U}) {
        std::vector<std::string> params;
        for (const char *name : {"X_LANTIQ_COM_PRI_DNSv6", "X_LANTIQ_COM_SEC_DNSv6", "X_LANTIQ_COM_V6_DOMAIN_NAME",
                                 "X_LANTIQ_COM_IPv6_LANMode"}) {
            params.push_back(std::string(name) + "=" + longText);
        }
        platform().on(kPool6,
                      {object("Device.IPv6", params),
                       object("Device.DHCPv6.Server.Pool.1",
                              {"X_ZINTU_MinAddress=" + longText, "X_ZINTU_MaxAddress=" + longText.substr(0, length)})});
        LANv6Info info = {};
        EXPECT_EQ(0, ZintuGet_LANv6Info(&info));
        const std::string console = takeConsole();
        const std::string line = console.substr(console.find("return pxLANv6Info"));
        EXPECT_EQ(length < 127 ? 914 + length : 1023U, line.size());
        EXPECT_TRUE(line.ends_with('\n')) << line;
    }
}

TEST_F(Lan, Ipv6Addresses) {
    struct Row {
        std::vector<Object> answer;
        const char *address;
        int prefixLength;
    };
    const Object prefix = object("Device.RouterAdvertisement.InterfaceSetting.1", {"ManualPrefixes=2001:db8:1::"});
    const auto address = [](const std::string &value) {
        return object("Device.IP.Interface.1.IPv6Address.1", {"IPAddress=" + value});
    };
    const Row rows[] = {
        {{address("fe80::1")}, "fe80::1", 128},
        {{address("fe80::1/"), prefix}, "fe80::1", 0},
        {{address("/9")}, "", 9},
        {{address("x"), prefix}, "2001:db8:1::1", 64},
        {{address("")}, "1", 64},
        {{}, "1", 64},
    };
    for (const Row &row : rows) {
        platform().on(kPool6, row.answer);
        LANv6Info info = {};
        EXPECT_EQ(0, ZintuGet_LANv6Info(&info));
        EXPECT_STREQ(row.address, info.sIPv6Address);
        EXPECT_EQ(row.prefixLength, info.nPrefixLength);
    }
}

} // namespace
