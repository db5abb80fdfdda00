// SPDX-License-Identifier: MIT
#include "platform.h"

using namespace test;

namespace {

constexpr char kWanNetwork[] = "Device.X_ZINTU_CurrentNetwork";
constexpr char kForwarding[] = "Device.Routing.Router.1.IPv4Forwarding.";
constexpr char kPpp[] = "Device.PPP.Interface.1";
constexpr char kVlan[] = "Device.Ethernet.VLANTermination.2";

// A default WAN on Device.IP.Interface.3; each test changes what it is about.
class DefaultWan : public LibraryTest {
  protected:
    void SetUp() override {
        LibraryTest::SetUp();
        leaveNodes(); // the IPv6 forwarding message stays
    }

    int32_t ask() {
        platform().on(kWanNetwork,
                      {object("N", {"WanIpInterface=Device.IP.Interface.3", "WanIpType=" + ipType,
                                    "Ipv4Mode=" + ipv4Mode, "PppStaticDNS1=" + dns1, "PppStaticDNS2=" + dns2})});
        platform().on(kWanNetwork, {object("N", {"WanIpv6Type=" + ipv6Type})});
        platform().on("Device.IP.Interface.3", {object("I", interface), object("below", {"Status=Down", "Name=no"})});
        platform().on("Device.IP.Interface.3.IPv4Address",
                      {object("A", {"AddressingType=" + addressing, "IPAddress=192.0.2.10", "SubnetMask=255.255.255.0",
                                    "X_LANTIQ_COM_Description=text"})});
        platform().on(kPpp, {object("P", ppp)});
        platform().on(kForwarding, forwarding);
        platform().on(kVlan, vlan);
        return ZintuGet_DefWanInfo(&info);
    }

    std::string ipType = "dynamic", ipv4Mode, dns1 = "9.9.9.9", dns2, ipv6Type = "slaac", addressing = "DHCP";
    std::vector<std::string> interface = {"Status=Up", "Name=eth1", "LowerLayers=Device.Ethernet.Link.3"};
    std::vector<std::string> ppp;
    Reply forwarding = {0, {object("F", {"GatewayIPAddress=192.0.2.1", "Origin=DHCPv4"})}};
    Reply vlan = {0, {object("V", {"Enable=true", "VLANID=7"})}};
    ZintuWanInfo info = {};
};

TEST_F(DefaultWan, PppOverVlan) {
    ipType = "";
    addressing = "X_LANTIQ_COM_PPPoE";
    interface[2] = "LowerLayers=Device.PPP.Interface.1";
    ppp = {"Username=" + std::string(80, 'u'),
           "Password=secret",
           "IdleDisconnectTime=60",
           "MaxMRUSize=1492",
           "ACName=ac",
           "ServiceName=service",
           "ConnectionTrigger=OnDemand",
           "LowerLayers=" + std::string(kVlan)};
    EXPECT_EQ(0, ask());
    EXPECT_STREQ("Up", info.sStatus);
    EXPECT_STREQ("eth1", info.sName);
    EXPECT_STREQ("pppoe", info.sWanIpType);
    EXPECT_STREQ("router", info.sOperMode);
    EXPECT_STREQ("192.0.2.10", info.sIPAddress);
    EXPECT_STREQ("255.255.255.0", info.sSubnetMask);
    EXPECT_STREQ("192.0.2.1", info.sGateway);
    EXPECT_STREQ("text", info.sDescription);
    EXPECT_STREQ(kPpp, info.sPppInterface);
    EXPECT_EQ(std::string(63, 'u'), info.sUsername);
    EXPECT_STREQ("secret", info.sPassword);
    EXPECT_STREQ("ac", info.sACName);
    EXPECT_STREQ("service", info.sServiceName);
    EXPECT_STREQ("always", info.sConnectionTrigger);
    EXPECT_EQ(60, info.nIdleDisconnectTime);
    EXPECT_EQ(1492, info.nMaxMRUSize);
    EXPECT_EQ(3, info.nWanIpIfIndex);
    EXPECT_EQ(1, info.bVlanEnable);
    EXPECT_EQ(7, info.nVlanID);
    EXPECT_EQ(1, info.bDnsAuto);
    EXPECT_STREQ("slaac", info.sIpv6Type);
    EXPECT_EQ(
        (std::vector<std::string>{
            "getValue 1/0x4/32 Device.X_ZINTU_CurrentNetwork", "getValue 1/0x4/32 Device.IP.Interface.3",
            "getValue 1/0x4/32 Device.IP.Interface.3.IPv4Address", "getValue 1/0x1004/2 Device.PPP.Interface.1",
            "getValue 1/0x100/2 Device.Routing.Router.1.IPv4Forwarding.(Interface=Device.IP.Interface.3.)",
            "getValue 1/0x4/4 Device.Ethernet.VLANTermination.2", "getValue 1/0x4/32 Device.IPv6.",
            "getValue 1/0x4/32 Device.X_ZINTU_CurrentNetwork", "getValue 1/0x4/32 Device.IP.Interface.3.IPv6Address.1",
            "getValue 1/0x4/32 Device.Routing.Router.1.IPv6Forwarding.3"}),
        platform().callTexts());
    EXPECT_EQ(2U, platform().nodes()) << "head and object of the IPv6 forwarding request";
    EXPECT_EQ("", takeConsole());
}

TEST_F(DefaultWan, AddressingTypes) {
    struct Row {
        const char *addressing, *type, *operMode, *ipv4Mode;
    };
    const Row rows[] = {
        {"DHCP", "dynamic", "router", "auto"},
        {"Static", "static", "router", "static"},
        {"X_LANTIQ_COM_PPPoA", "pppoa", "router", "auto"},
        {"X_LANTIQ_COM_PPTP", "pptp", "router", "auto"},
        {"X_LANTIQ_COM_L2TP", "l2tp", "router", "auto"},
        {"X_LANTIQ_COM_Bridged", "dynamic", "bridge", "auto"},
        {"dhcp", "kept", "router", "auto"},
    };
    for (const Row &row : rows) {
        resetPlatform();
        info = {};
        addressing = row.addressing;
        ipType = strcmp(row.type, "kept") == 0 ? "kept" : "";
        ipv4Mode = "auto";
        EXPECT_EQ(0, ask());
        EXPECT_STREQ(row.type, info.sWanIpType) << row.addressing;
        EXPECT_STREQ(row.operMode, info.sOperMode);
        EXPECT_STREQ(row.ipv4Mode, info.sIpv4Mode);
    }
    resetPlatform();
    info = {};
    ipType = "dynamic"; // without a terminator the longer word shines through
    addressing = "Static";
    EXPECT_EQ(0, ask());
    EXPECT_STREQ("staticc", info.sWanIpType);
}

TEST_F(DefaultWan, ResultIsThatOfForwardingOrVlan) {
    forwarding = {-208, {}};
    EXPECT_EQ(-208, ask());
    EXPECT_STREQ("", info.sGateway);
    interface[2] = "LowerLayers=" + std::string(kVlan);
    resetPlatform();
    EXPECT_EQ(0, ask()) << "the VLAN request's result replaces it";
    vlan = {-202, {}};
    forwarding = {0, {}};
    resetPlatform();
    EXPECT_EQ(-1, ask());
}

TEST_F(DefaultWan, GatewaysByOrigin) {
    forwarding = {0,
                  {object("F", {"GatewayIPAddress=1.0.0.1", "Origin=DHCPv4"}),
                   object("F", {"GatewayIPAddress=1.0.0.2", "Origin=Static route"}),
                   object("F", {"GatewayIPAddress=1.0.0.3", "Origin=static"}),
                   object("F", {"GatewayIPAddress=", "Origin=X_LANTIQ_COM_PPPoE"}), object("F", {"Origin=Static"})}};
    EXPECT_EQ(0, ask());
    EXPECT_STREQ("1.0.0.2", info.sGateway);
    EXPECT_TRUE(takeConsole().starts_with(vola("FaltoCal", 1357, "zintu_GetParamFromObjUnit") +
                                          "Can't find Param(GatewayIPAddress) in Obj\n"));
}

TEST_F(DefaultWan, PppTriggersAndEmptyValues) {
    ipType = "pppoa";
    addressing = "unknown";
    interface[2] = "LowerLayers=Device.PPP.Interface.1";
    for (const auto &[value, word] :
         {std::pair{"ondemand", "ondemand"}, {"manual", "manual"}, {"x", "always"}, {"", ""}}) {
        resetPlatform();
        info = {};
        info.nMaxMRUSize = 5;
        ppp = {"MaxMRUSize=", std::string("ConnectionTrigger=") + value};
        EXPECT_EQ(0, ask());
        EXPECT_STREQ(word, info.sConnectionTrigger);
        EXPECT_EQ(5, info.nMaxMRUSize);
    }
    resetPlatform();
    interface[2] = "LowerLayers=Device.PPP.Interface.9";
    EXPECT_EQ(0, ask());
    EXPECT_TRUE(takeConsole().ends_with(vola("ZintuNetworkGet", 636, "ZintuGet_DefWanInfo") +
                                        "faltocal_send_main_multi_obj function failed. \n"));
}

TEST_F(DefaultWan, DnsDecision) {
    struct Row {
        const char *addressing, *ipv4Mode, *dns1, *dns2;
        int dnsAuto;
        bool asksStatic, asksDhcp;
    };
    const Row rows[] = {
        {"DHCP", "", "1.1.1.1", "", 1, true, false},
        {"DHCP", "", "", "", 1, true, true},
        {"Static", "", "0.0.0.0", "0.0.0.0", 0, false, true},
        {"Static", "", "0.0.0.0", "", 0, false, false}, // one valid address
        {"Static", "", "x", "y", 0, false, true},
        {"X_LANTIQ_COM_PPPoE", "static", "1.1.1.1", "", 0, false, false},
        {"X_LANTIQ_COM_PPPoE", "auto", "1.1.1.1", "", 1, false, false},
        {"X_LANTIQ_COM_PPPoA", "static", "1.1.1.1", "", 1, false, false},
    };
    for (const Row &row : rows) {
        resetPlatform();
        info = {};
        ipType = "";
        addressing = row.addressing;
        ipv4Mode = row.ipv4Mode;
        dns1 = row.dns1;
        dns2 = row.dns2;
        EXPECT_EQ(0, ask());
        EXPECT_EQ(row.dnsAuto, info.bDnsAuto) << row.addressing << ' ' << row.dns1;
        const std::vector<std::string> calls = platform().callTexts();
        const auto asked = [&](const char *object) {
            return std::count(calls.begin(), calls.end(), std::string("getValue 1/0x100/2 ") + object);
        };
        EXPECT_EQ(row.asksDhcp ? 1 : 0, asked("Device.DHCPv4.Client.")) << row.addressing << ' ' << row.dns1;
        EXPECT_EQ((row.asksStatic ? 1 : 0) + (row.asksDhcp ? 1 : 0), asked("Device.DNS.Client.Server."));
    }
}

TEST_F(DefaultWan, NothingKnown) {
    EXPECT_EQ(-1, ZintuGet_DefWanInfo(&info));
    EXPECT_EQ(1U, platform().calls().size());
    EXPECT_EQ(0U, platform().nodes());
}

} // namespace
