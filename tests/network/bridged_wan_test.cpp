// SPDX-License-Identifier: MIT
// Bridged WAN and the IPv6 block.
#include "platform.h"

using namespace test;

namespace {

using BridgedWan = LibraryTest;
constexpr char kInterface[] = "Device.IP.Interface.1.";
constexpr char kAddress[] = "Device.IP.Interface.1.IPv4Address.1.";
constexpr char kBridgeForwarding[] = "Device.Routing.Router.1.IPv4Forwarding.";

TEST_F(BridgedWan, UpOnlyWithADhcpAddress) {
    struct Row {
        std::vector<std::string> address;
        bool up;
    };
    const Row rows[] = {
        {{"X_LANTIQ_COM_Description=by DHCP", "IPAddress=192.0.2.7", "SubnetMask=255.255.255.0"}, true},
        {{"X_LANTIQ_COM_Description=Static", "IPAddress=192.0.2.7", "SubnetMask=255.255.255.0"}, false},
        {{"X_LANTIQ_COM_Description=DHCP", "IPAddress=0.0.0.0", "SubnetMask=255.255.255.0"}, false},
        {{"X_LANTIQ_COM_Description=DHCP", "IPAddress=", "SubnetMask=255.255.255.0"}, false},
        {{"X_LANTIQ_COM_Description=DHCP", "IPAddress=192.0.2.7"}, false},
    };
    for (const Row &row : rows) {
        resetPlatform();
        platform().on(kInterface, {object("I", {"Name=br-lan"}), object("I", {"Name=no", "LowerLayers=below"})});
        platform().on(kAddress, {object("A", row.address)});
        platform().on(kBridgeForwarding, {object("F", {"GatewayIPAddress=1.0.0.1", "Origin=DHCPv4"}),
                                          object("F", {"GatewayIPAddress=1.0.0.2", "Origin=Static"})});
        ZintuWanInfo info = {};
        info.nVlanID = info.bVlanEnable = info.nWanIpIfIndex = 5;
        info.bIpv6Enable = 1;
        EXPECT_EQ(0, ZintuGet_BrWanInfo(2, &info));
        EXPECT_STREQ(row.up ? "Up" : "Down", info.sStatus);
        EXPECT_STREQ(row.up ? "by DHCP" : "0.0.0.0", info.sDescription);
        EXPECT_STREQ(row.up ? "192.0.2.7" : "0.0.0.0", info.sIPAddress);
        EXPECT_STREQ(row.up ? "255.255.255.0" : "0.0.0.0", info.sSubnetMask);
        EXPECT_STREQ("bridge", info.sOperMode);
        EXPECT_STREQ(kInterface, info.sWanIpInterface);
        EXPECT_STREQ("dynamic", info.sWanIpType);
        EXPECT_STREQ("wifi", info.sWanLinkType);
        EXPECT_STREQ("dynamic", info.sIpv4Mode);
        EXPECT_STREQ("br-lan", info.sName);
        EXPECT_STREQ("below", info.sLowerLayers);
        EXPECT_STREQ("1.0.0.2", info.sGateway);
        EXPECT_STREQ("dhcpv6", info.sIpv6Type);
        EXPECT_EQ(0, info.nVlanID + info.bVlanEnable + info.bIpv6Enable);
        EXPECT_EQ(5, info.nWanIpIfIndex);
        EXPECT_EQ(1, info.bDnsAuto);
        EXPECT_EQ(
            (std::vector<std::string>{
                "getValue 1/0x4/32 Device.IP.Interface.1.", "getValue 1/0x4/32 Device.IP.Interface.1.IPv4Address.1.",
                "getValue 1/0x100/2 Device.Routing.Router.1.IPv4Forwarding.(Interface=Device.IP.Interface.1.)",
                "getValue 1/0x100/2 Device.DHCPv4.Client.", "getValue 1/0x100/2 Device.DNS.Client.Server."}),
            platform().callTexts());
    }
    EXPECT_EQ("", takeConsole());
}

TEST_F(BridgedWan, FlagsAndResult) {
    ZintuWanInfo info = {};
    EXPECT_EQ(-1, ZintuGet_BrWanInfo(6, &info));
    EXPECT_EQ('\0', info.sOperMode[0]);
    EXPECT_TRUE(platform().calls().empty());
    platform().on(kBridgeForwarding, Reply{-208});
    EXPECT_EQ(-208, ZintuGet_BrWanInfo(8, &info));
    EXPECT_STREQ("ethernet", info.sWanLinkType);
    EXPECT_STREQ("Down", info.sStatus);
}

class WanIpv6 : public LibraryTest {
  protected:
    void SetUp() override {
        LibraryTest::SetUp();
        leaveNodes();
        strcpy(info.sWanIpInterface, "Device.IP.Interface.3.");
        info.nWanIpIfIndex = 3;
    }
    ZintuWanInfo info = {};
};

TEST_F(WanIpv6, FillsTheBlock) {
    const std::string full(46, 'a');
    platform().on("Device.IPv6.", {object("6", {"Enable=true"}), object("6", {"Enable=False", "Other=1"})});
    platform().on("Device.X_ZINTU_CurrentNetwork", {object("N", {"WanIpv6Type=dhcpv6-stateful"})});
    platform().on("Device.IP.Interface.3..IPv6Address.1",
                  {object("A", {"IPAddress=" + full, "IPAddress=" + full + "x"})});
    platform().on("Device.Routing.Router.1.IPv6Forwarding.3", {object("F", {"NextHop=fe80::1", "NextHop=fe80::2"})});
    EXPECT_EQ(0, ZintuGet_WanIPv6(&info));
    EXPECT_EQ(0, info.bIpv6Enable);
    EXPECT_STREQ("dhcpv6", info.sIpv6Type);
    EXPECT_EQ(full + "fe80::2", info.sIpv6Address);
    EXPECT_EQ(4U, platform().nodes()) << "the answer to the fourth request stays";
}

TEST_F(WanIpv6, Types) {
    const std::pair<const char *, const char *> rows[] = {
        {"slaac", "slaac"},   {"x-stateless", "dhcpv6"}, {"static", "static"},
        {"Static", "dhcpv6"}, {"other", "dhcpv6"},       {"", "kept"},
    };
    for (const auto &[value, type] : rows) {
        strcpy(info.sIpv6Type, "kept");
        platform().on("Device.X_ZINTU_CurrentNetwork", {object("N", {std::string("WanIpv6Type=") + value})});
        EXPECT_EQ(-1, ZintuGet_WanIPv6(&info)) << "the fourth request fails";
        EXPECT_STREQ(type, info.sIpv6Type);
    }
    EXPECT_EQ("", takeConsole());
}

} // namespace
