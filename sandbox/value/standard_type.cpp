// SPDX-License-Identifier: MIT
#include "value/standard_type.h"

#include <algorithm>
#include <iterator>

namespace sandbox {
namespace {

struct Row {
    std::string_view parameter, type;
};

// By parameter. Beacon and DTIM periods have no range in TR-181: theirs is that of their fields in a beacon.
constexpr Row kTypes[] = {
    {"Device.ATM.Link.{i}.Encapsulation", "enum(LLC|VCMUX)"},
    {"Device.ATM.Link.{i}.LinkType", "enum(EoA|IPoA|PPPoA|CIP|Unconfigured)"},
    {"Device.ATM.Link.{i}.QoS.QoSClass", "enum(UBR|CBR|GFR|VBR-nrt|VBR-rt|UBR+|ABR)"},
    {"Device.Bridging.Bridge.{i}.Port.{i}.DefaultUserPriority", "unsignedInt(0:7)"},
    {"Device.Bridging.Bridge.{i}.Port.{i}.PVID", "int(1:4094)"},
    {"Device.Bridging.Bridge.{i}.VLAN.{i}.VLANID", "int(1:4094)"},
    {"Device.DHCPv4.Relay.Forwarding.{i}.DHCPServerIPAddress", "IPv4Address"},
    {"Device.DHCPv4.Server.Pool.{i}.DNSServers", "list IPv4Address"},
    {"Device.DHCPv4.Server.Pool.{i}.IPRouters", "list IPv4Address"},
    {"Device.DHCPv4.Server.Pool.{i}.LeaseTime", "int(-1:)"},
    {"Device.DHCPv4.Server.Pool.{i}.MaxAddress", "IPv4Address"},
    {"Device.DHCPv4.Server.Pool.{i}.MinAddress", "IPv4Address"},
    {"Device.DHCPv4.Server.Pool.{i}.ReservedAddresses", "list IPv4Address"},
    {"Device.DHCPv4.Server.Pool.{i}.StaticAddress.{i}.Yiaddr", "IPv4Address"},
    {"Device.DHCPv4.Server.Pool.{i}.SubnetMask", "IPv4Address"},
    {"Device.DNS.Client.Server.{i}.DNSServer", "IPAddress"},
    {"Device.DNS.Relay.Forwarding.{i}.DNSServer", "IPAddress"},
    {"Device.DSLite.InterfaceSetting.{i}.EndpointAddress", "IPv6Address"},
    {"Device.Ethernet.Interface.{i}.DuplexMode", "enum(Half|Full|Auto)"},
    {"Device.Ethernet.Interface.{i}.MaxBitRate", "int(-1:)"},
    {"Device.Ethernet.VLANTermination.{i}.VLANID", "unsignedInt(1:4094)"},
    {"Device.Firewall.Chain.{i}.Rule.{i}.DestIP", "IPAddress"},
    {"Device.Firewall.Chain.{i}.Rule.{i}.SourceIP", "IPAddress"},
    {"Device.Firewall.DMZ.{i}.DestIP", "IPv4Address"},
    {"Device.Hosts.AccessControl.{i}.AccessPolicy", "enum(Allow|Deny)"},
    {"Device.IP.Interface.{i}.IPv4Address.{i}.IPAddress", "IPv4Address"},
    {"Device.IP.Interface.{i}.IPv4Address.{i}.SubnetMask", "IPv4Address"},
    {"Device.IP.Interface.{i}.IPv6Address.{i}.IPAddress", "IPv6Address"},
    {"Device.IP.Interface.{i}.MaxMTUSize", "unsignedInt(64:65535)"},
    {"Device.IPv6rd.InterfaceSetting.{i}.BorderRelayIPv4Addresses", "list IPv4Address"},
    {"Device.NAT.PortMapping.{i}.ExternalPort", "unsignedInt(0:65535)"},
    {"Device.NAT.PortMapping.{i}.ExternalPortEndRange", "unsignedInt(0:65535)"},
    {"Device.NAT.PortMapping.{i}.InternalPort", "unsignedInt(0:65535)"},
    {"Device.NAT.PortMapping.{i}.Protocol", "enum(TCP|UDP)"},
    {"Device.PPP.Interface.{i}.MaxMRUSize", "unsignedInt(64:65535)"},
    {"Device.QoS.Classification.{i}.DestIP", "IPAddress"},
    {"Device.QoS.Classification.{i}.SourceIP", "IPAddress"},
    {"Device.RouterAdvertisement.InterfaceSetting.{i}.AdvCurHopLimit", "unsignedInt(:255)"},
    {"Device.RouterAdvertisement.InterfaceSetting.{i}.AdvDefaultLifetime", "unsignedInt(:65535)"},
    {"Device.RouterAdvertisement.InterfaceSetting.{i}.AdvPreferredRouterFlag", "enum(High|Medium|Low)"},
    {"Device.RouterAdvertisement.InterfaceSetting.{i}.MaxRtrAdvInterval", "unsignedInt(4:1800)"},
    {"Device.RouterAdvertisement.InterfaceSetting.{i}.MinRtrAdvInterval", "unsignedInt(3:1350)"},
    {"Device.RouterAdvertisement.InterfaceSetting.{i}.RDNSS", "list IPv6Address"},
    {"Device.Routing.Router.{i}.IPv4Forwarding.{i}.DestIPAddress", "IPv4Address"},
    {"Device.Routing.Router.{i}.IPv4Forwarding.{i}.DestSubnetMask", "IPv4Address"},
    {"Device.Routing.Router.{i}.IPv4Forwarding.{i}.ForwardingMetric", "int(-1:)"},
    {"Device.Routing.Router.{i}.IPv4Forwarding.{i}.GatewayIPAddress", "IPv4Address"},
    {"Device.Routing.Router.{i}.IPv6Forwarding.{i}.ForwardingMetric", "int(-1:)"},
    {"Device.Routing.Router.{i}.IPv6Forwarding.{i}.NextHop", "IPv6Address"},
    {"Device.WiFi.AccessPoint.{i}.Accounting.SecondaryServerIPAddr", "IPAddress"},
    {"Device.WiFi.AccessPoint.{i}.Accounting.ServerIPAddr", "IPAddress"},
    {"Device.WiFi.AccessPoint.{i}.Security.KeyPassphrase", "string(8:63)"},
    {"Device.WiFi.AccessPoint.{i}.Security.MFPConfig", "enum(Disabled|Optional|Required)"},
    {"Device.WiFi.AccessPoint.{i}.Security.ModeEnabled",
     "enum(None|WEP-64|WEP-128|WPA-Personal|WPA2-Personal|WPA3-Personal|WPA-WPA2-Personal|WPA3-Personal-Transition|WPA-"
     "Enterprise|WPA2-Enterprise|WPA3-Enterprise|WPA-WPA2-Enterprise|OWE)"},
    {"Device.WiFi.AccessPoint.{i}.Security.RadiusServerIPAddr", "IPAddress"},
    {"Device.WiFi.AccessPoint.{i}.Security.SecondaryRadiusServerIPAddr", "IPAddress"},
    {"Device.WiFi.AccessPoint.{i}.WPS.ConfigMethodsEnabled",
     "list "
     "enum(USBFlashDrive|Ethernet|Label|Display|ExternalNFCToken|IntegratedNFCToken|NFCInterface|PushButton|PIN|"
     "PhysicalPushButton|PhysicalDisplay|VirtualPushButton|VirtualDisplay)"},
    {"Device.WiFi.EndPoint.{i}.Profile.{i}.Priority", "unsignedInt(:255)"},
    {"Device.WiFi.EndPoint.{i}.Profile.{i}.SSID", "string(32)"},
    {"Device.WiFi.EndPoint.{i}.Profile.{i}.Security.KeyPassphrase", "string(8:63)"},
    {"Device.WiFi.EndPoint.{i}.Profile.{i}.Security.MFPConfig", "enum(Disabled|Optional|Required)"},
    {"Device.WiFi.EndPoint.{i}.Profile.{i}.Security.ModeEnabled",
     "enum(None|WEP-64|WEP-128|WPA-Personal|WPA2-Personal|WPA3-Personal|WPA-WPA2-Personal|WPA3-Personal-Transition|WPA-"
     "Enterprise|WPA2-Enterprise|WPA3-Enterprise|WPA-WPA2-Enterprise|OWE)"},
    {"Device.WiFi.EndPoint.{i}.WPS.ConfigMethodsEnabled",
     "list "
     "enum(USBFlashDrive|Ethernet|Label|Display|ExternalNFCToken|IntegratedNFCToken|NFCInterface|PushButton|PIN|"
     "PhysicalPushButton|PhysicalDisplay|VirtualPushButton|VirtualDisplay)"},
    {"Device.WiFi.Radio.{i}.BeaconPeriod", "unsignedInt(1:65535)"},
    {"Device.WiFi.Radio.{i}.Channel", "unsignedInt(1:255)"},
    {"Device.WiFi.Radio.{i}.DTIMPeriod", "unsignedInt(1:255)"},
    {"Device.WiFi.Radio.{i}.ExtensionChannel", "enum(AboveControlChannel|BelowControlChannel|Auto)"},
    {"Device.WiFi.Radio.{i}.GuardInterval",
     "enum(400nsec|800nsec|1xLTF_0.8us|1xLTF_1.6us|2xLTF_0.8us|2xLTF_1.6us|4xLTF_0.8us|4xLTF_3.2us|Auto)"},
    {"Device.WiFi.Radio.{i}.MCS", "int(-1:15,16:31)"},
    {"Device.WiFi.Radio.{i}.OperatingChannelBandwidth",
     "enum(20MHz|40MHz|80MHz|160MHz|80+80MHz|320MHz-1|320MHz-2|Auto)"},
    {"Device.WiFi.Radio.{i}.OperatingFrequencyBand", "enum(2.4GHz|5GHz|6GHz)"},
    {"Device.WiFi.Radio.{i}.OperatingStandards", "list enum(a|b|g|n|ac|ax|be)"},
    {"Device.WiFi.Radio.{i}.PreambleType", "enum(short|long|auto)"},
    {"Device.WiFi.Radio.{i}.RetryLimit", "unsignedInt(0:7)"},
    {"Device.WiFi.Radio.{i}.TransmitPower", "int(-1:100)"},
    {"Device.WiFi.SSID.{i}.SSID", "string(32)"},
};

static_assert(std::is_sorted(std::begin(kTypes), std::end(kTypes),
                             [](const Row &a, const Row &b) { return a.parameter < b.parameter; }));

} // namespace

std::string_view standardType(std::string_view parameter) {
    const auto *row = std::lower_bound(std::begin(kTypes), std::end(kTypes), parameter,
                                       [](const Row &a, std::string_view wanted) { return a.parameter < wanted; });
    return row != std::end(kTypes) && row->parameter == parameter ? row->type : "";
}

} // namespace sandbox
