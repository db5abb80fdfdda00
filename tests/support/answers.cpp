// SPDX-License-Identifier: MIT
#include "answers.h"

#include "network/pages.h"

#include <cstring>

namespace test {
namespace {

// What the pages do not name: read by hand, found by a filter, or kept by a snapshot. The interface comes first, where
// only one object counts.
std::vector<Object> objectsWithoutPage() {
    return {
        object("Device.IP.Interface.3",
               {"Status=Enabled Up", "LowerLayers=Device.Ethernet.VLANTermination.1", "Name=FailOver"}),
        object("Device.IP.Interface.3.IPv4Address.1", {"AddressingType=X_LANTIQ_COM_PPPoE"}),
        object("Device.IP.Interface.3.IPv6Address.1", {"IPAddress=2001:db8::1"}),
        object("Device.IP.Interface.1.IPv6Address.1", {"IPAddress=fe80::1/64"}),
        object("Device.IP.Interface.1.IPv4Address.1.",
               {"X_LANTIQ_COM_Description=DHCP", "IPAddress=192.0.2.10", "SubnetMask=255.255.255.0"}),
        object("Device.PPP.Interface.1",
               {"ConnectionTrigger=ondemand", "LowerLayers=Device.Ethernet.VLANTermination.1"}),
        object("Device.Ethernet.VLANTermination.1", {"Enable=true", "VLANID=7"}),
        object("Device.IPv6", {"Enable=true"}),
        object("Device.X_ZINTU_CurrentNetwork", {"OperationMode=4", "WanIpv6Type=slaac", "EnableIpv6PD=true"}),
        object("Device.X_LANTIQ_COM_NwHardware.WANConnection.1",
               {"ConnMode=ETH", "UciSection=wan", "ConnectionName=FailOver"}),
        object("Device.Routing.Router.1.IPv4Forwarding.1", {"GatewayIPAddress=192.0.2.4", "Origin=DHCPv4"}),
        object("Device.Routing.Router.1.IPv6Forwarding.3", {"NextHop=fe80::1"}),
        object("Device.DHCPv4.Client.1",
               {"Enable=true", "Status=Enabled", "Interface=Device.IP.Interface.3", "DNSServers=192.0.2.1,192.0.2.2"}),
        object("Device.DNS.Client.Server.1", {"Enable=true", "Status=Enabled", "Interface=Device.IP.Interface.3",
                                              "DNSServer=192.0.2.3", "Type=Static"}),
        object("Device.DHCPv4.Server", {"Enable=1"}),
        object("Device.RouterAdvertisement.InterfaceSetting.1", {"ManualPrefixes=2001:db8:1::"}),
        object("Device.DSL.Line.1", {"Status=Up"}),
        object("Device.DSL.X_LANTIQ_COM_Config", {"XTSE_Modes=1,2"}),
        object("Device.ATM.Link.1", {"DestinationAddress=8/35"}),
        object("Device.ATM.Link.1.QoS", {"QoSClass=UBR"}),
        object("Device.X_LANTIQ_COM_Multiwan.Multiwan.1", {"Enabled=1"}),
        object("Device.X_LANTIQ_COM_Multiwan.Multiwan.1.Type", {"Name=FailOver"}),
        object("Device.X_LANTIQ_COM_Multiwan.Multiwan.1.WANConnections.1", {"Interface=wan"}),
        object("Device.X_LANTIQ_COM_Multiwan.Multiwan.1.WANConnections.2", {"Interface=w902"}),
        object("Device.X_ZINTU_Multi_Bridge", {"Enable=true"}),
        object("Device.X_ZINTU_Multi_Bridge.Bridge.1", {"Description=IPTV", "MemberPort=lan4"}),
        object("Device.Hosts", {"HostNumberOfEntries=1"}),
        object("Device.Hosts.Host.3", {"PhysAddress=02:00:00:00:00:01", "IPAddress=192.0.2.30"}),
        object("Device.WiFi.X_ZINTU_RoamingMesh", {"Enable=true"}),
        object("Device.WiFi.SSID.1", {"Enable=1", "X_ZINTU_Active=1", "LowerLayers=Device.WiFi.Radio.1.", "SSID=home",
                                      "BSSID=02:00:00:00:00:02", "X_ZINTU_NetworkType=Main", "Name=wlan0"}),
        object("Device.WiFi.AccessPoint.1",
               {"AssociatedDeviceNumberOfEntries=2", "SSIDAdvertisementEnabled=1", "WMMEnable=1", "UAPSDEnable=1"}),
        object("Device.WiFi.AccessPoint.1.Security", {"ModeEnabled=WPA2-Personal", "KeyPassphrase=secret words"}),
        object("Device.WiFi.Radio.1",
               {"IEEE80211hEnabled=1", "Channel=6", "OperatingChannelBandwidth=40MHz", "TransmitPower=100"}),
        object("Device.WiFi.Radio.1.X_LANTIQ_COM_Vendor", {"WaveInterfererDetectionThreshold=-68"}),
        object("Device.WiFi.EndPoint.1", {"Enable=true", "SSIDReference=Device.WiFi.SSID.1"}),
    };
}

// The path of an object of a page: those of two pages are put together with the path of an interface.
std::string objectOf(const frame::PageHead &page) {
    const std::string path = page.object();
    return path.empty() ? "Device.PPP.Interface.1" : path.starts_with('.') ? "Device.IP.Interface.3" + path : path;
}

// A value that leads on, or one that fits the field.
std::string valueOf(const frame::Field &field) {
    static const std::map<std::string, std::string> leading = {
        {"WanIpInterface", "Device.IP.Interface.3"},
        {"WanIpType", "pppoe"},
        {"Ipv4Mode", "static"},
        {"PppStaticDNS1", "0.0.0.0"},
        {"PppStaticDNS2", "0.0.0.0"},
    };
    if (const auto found = leading.find(field.name); found != leading.end()) {
        return found->second;
    }
    return field.rule == frame::Rule::Number ? "7" : field.rule == frame::Rule::Flag ? "true" : "some text";
}

} // namespace

const Reply &richAnswer() {
    static const Reply answer = [] {
        Reply reply = {0, objectsWithoutPage()};
        for (const frame::PageHead *page : network::kPages) {
            Object &object = reply.objects.emplace_back(Object{objectOf(*page), {}});
            for (const frame::Field &field : page->fields()) {
                object.params.push_back({field.name, valueOf(field)});
            }
        }
        return reply;
    }();
    return answer;
}

} // namespace test
