// SPDX-License-Identifier: MIT
// The network pages' tables.
#pragma once

#include "frame/field_table.h"

namespace network {

using frame::Field;
using frame::Fields;
using frame::Rule;

// Device.X_ZINTU_CurrentNetwork: values run on past their fields.
inline constexpr Field kDefaultGateway[] = {
    FIELD_BY(ZintuWanInfo, sWanIpInterface, "WanIpInterface", Rule::Overrunning),
    FIELD_BY(ZintuWanInfo, sWanIpType, "WanIpType", Rule::Overrunning),
    FIELD_BY(ZintuWanInfo, sWanLinkType, "WanLinkType", Rule::Overrunning),
    FIELD_BY(ZintuWanInfo, sIpv4Mode, "Ipv4Mode", Rule::Overrunning),
    FIELD_BY(ZintuWanInfo, sPppStaticAddress, "PppStaticAddress", Rule::Overrunning),
    FIELD_BY(ZintuWanInfo, sDNS1, "PppStaticDNS1", Rule::Overrunning),
    FIELD_BY(ZintuWanInfo, sDNS2, "PppStaticDNS2", Rule::Overrunning),
};

// The default WAN's IPv4 address object.
inline constexpr Field kWanAddress[] = {
    FIELD_BY(ZintuWanInfo, sDescription, "X_LANTIQ_COM_Description", Rule::Overrunning),
    FIELD(ZintuWanInfo, sIPAddress, "IPAddress"),
    FIELD(ZintuWanInfo, sSubnetMask, "SubnetMask"),
};

// The default WAN's PPP interface; empty values are skipped.
inline constexpr Field kPpp[] = {
    FIELD(ZintuWanInfo, nIdleDisconnectTime, "IdleDisconnectTime"),
    FIELD(ZintuWanInfo, sUsername, "Username"),
    FIELD(ZintuWanInfo, sPassword, "Password"),
    FIELD(ZintuWanInfo, nMaxMRUSize, "MaxMRUSize"),
    FIELD(ZintuWanInfo, sACName, "ACName"),
    FIELD(ZintuWanInfo, sServiceName, "ServiceName"),
};

// Device.DSL.Line.1.; empty values are skipped here and in the next three.
inline constexpr Field kDslLine[] = {
    FIELD_BY(ZintuDslLineInfo, sCurrentProfile, "CurrentProfile", Rule::Whole),
    FIELD(ZintuDslLineInfo, nUpstreamMaxBitRate, "UpstreamMaxBitRate"),
    FIELD(ZintuDslLineInfo, nDownstreamMaxBitRate, "DownstreamMaxBitRate"),
    FIELD(ZintuDslLineInfo, nUpstreamNoiseMargin, "UpstreamNoiseMargin"),
    FIELD(ZintuDslLineInfo, nDownstreamNoiseMargin, "DownstreamNoiseMargin"),
};

// Device.DSL.Channel.1.
inline constexpr Field kDslChannel[] = {
    FIELD(ZintuDslLineInfo, nUpstreamCurrRate, "UpstreamCurrRate"),
    FIELD(ZintuDslLineInfo, nDownstreamCurrRate, "DownstreamCurrRate"),
};

// Device.DSL.Line.1.TestParams.
inline constexpr Field kDslTestParams[] = {
    FIELD_BY(ZintuDslLineInfo, sLATNds, "LATNds", Rule::Whole),
    FIELD_BY(ZintuDslLineInfo, sLATNus, "LATNus", Rule::Whole),
};

// Device.DSL.Channel.1.Stats.Total.
inline constexpr Field kDslTotals[] = {
    FIELD(ZintuDslLineInfo, nXTURCRCErrors, "XTURCRCErrors"),
    FIELD(ZintuDslLineInfo, nXTUCCRCErrors, "XTUCCRCErrors"),
};

// Device.IP.Interface.1.IPv4Address.1.
inline constexpr Field kLanAddress[] = {
    FIELD_BY(LANv4Info, sIPv4Address, "IPAddress", Rule::Padded),
    FIELD_BY(LANv4Info, sIPv4Subnet, "SubnetMask", Rule::Padded),
};

// Device.DHCPv4.Server.Pool.1.
inline constexpr Field kLanPool[] = {
    FIELD(LANv4Info, bDHCPv4Active, "Enable"),
    FIELD_BY(LANv4Info, sDHCPv4StartIP, "MinAddress", Rule::Padded),
    FIELD_BY(LANv4Info, sDHCPv4EndIP, "MaxAddress", Rule::Padded),
    FIELD(LANv4Info, nLeaseTimeSec, "LeaseTime"),
};

// Device.Ethernet.Interface.1.
inline constexpr Field kLanEthernet[] = {
    FIELD_BY(LANv4Info, sMACAddr, "MACAddress", Rule::Padded),
};

// Device.IPv6.
inline constexpr Field kLanIpv6[] = {
    FIELD(LANv6Info, bIPv6Active, "Enable"),
    FIELD(LANv6Info, sDNSv6Primary, "X_LANTIQ_COM_PRI_DNSv6"),
    FIELD(LANv6Info, sDNSv6Secondary, "X_LANTIQ_COM_SEC_DNSv6"),
    FIELD(LANv6Info, sDomainNamev6, "X_LANTIQ_COM_V6_DOMAIN_NAME"),
    FIELD(LANv6Info, sLANv6Mode, "X_LANTIQ_COM_IPv6_LANMode"),
    FIELD(LANv6Info, bPDActive, "X_ZINTU_PDActive"),
};

// Device.DHCPv6.Server.Pool.1.
inline constexpr Field kLanPoolV6[] = {
    FIELD(LANv6Info, sDHCPv6StartIP, "X_ZINTU_MinAddress"),
    FIELD(LANv6Info, sDHCPv6EndIP, "X_ZINTU_MaxAddress"),
    FIELD(LANv6Info, nLeaseTimeSec, "X_ZINTU_PreferredLifetime"),
};

} // namespace network
