// SPDX-License-Identifier: MIT
// The network pages.
#pragma once

#include "frame/page.h"

namespace network {

using frame::Empty;
using frame::page;
using frame::Rule;

// Values may run on past their fields: Rule::Overrunning.
inline constexpr auto kDefaultGateway =
    page<ZintuWanInfo>("Device.X_ZINTU_CurrentNetwork", Empty::Store,
                       {
                           FIELD_BY(ZintuWanInfo, sWanIpInterface, "WanIpInterface", Rule::Overrunning),
                           FIELD_BY(ZintuWanInfo, sWanIpType, "WanIpType", Rule::Overrunning),
                           FIELD_BY(ZintuWanInfo, sWanLinkType, "WanLinkType", Rule::Overrunning),
                           FIELD_BY(ZintuWanInfo, sIpv4Mode, "Ipv4Mode", Rule::Overrunning),
                           FIELD_BY(ZintuWanInfo, sPppStaticAddress, "PppStaticAddress", Rule::Overrunning),
                           FIELD_BY(ZintuWanInfo, sDNS1, "PppStaticDNS1", Rule::Overrunning),
                           FIELD_BY(ZintuWanInfo, sDNS2, "PppStaticDNS2", Rule::Overrunning),
                       });

// Below the path of the default WAN's IP interface.
inline constexpr auto kWanAddress =
    page<ZintuWanInfo>(".IPv4Address", Empty::Store,
                       {
                           FIELD_BY(ZintuWanInfo, sDescription, "X_LANTIQ_COM_Description", Rule::Overrunning),
                           FIELD(ZintuWanInfo, sIPAddress, "IPAddress"),
                           FIELD(ZintuWanInfo, sSubnetMask, "SubnetMask"),
                       });

// Read from the object that "LowerLayers" of the default WAN's IP interface names.
inline constexpr auto kPpp = page<ZintuWanInfo>("", Empty::Skip,
                                                {
                                                    FIELD(ZintuWanInfo, nIdleDisconnectTime, "IdleDisconnectTime"),
                                                    FIELD(ZintuWanInfo, sUsername, "Username"),
                                                    FIELD(ZintuWanInfo, sPassword, "Password"),
                                                    FIELD(ZintuWanInfo, nMaxMRUSize, "MaxMRUSize"),
                                                    FIELD(ZintuWanInfo, sACName, "ACName"),
                                                    FIELD(ZintuWanInfo, sServiceName, "ServiceName"),
                                                });

inline constexpr auto kDslLine =
    page<ZintuDslLineInfo>("Device.DSL.Line.1.", Empty::Skip,
                           {
                               FIELD_BY(ZintuDslLineInfo, sCurrentProfile, "CurrentProfile", Rule::Whole),
                               FIELD(ZintuDslLineInfo, nUpstreamMaxBitRate, "UpstreamMaxBitRate"),
                               FIELD(ZintuDslLineInfo, nDownstreamMaxBitRate, "DownstreamMaxBitRate"),
                               FIELD(ZintuDslLineInfo, nUpstreamNoiseMargin, "UpstreamNoiseMargin"),
                               FIELD(ZintuDslLineInfo, nDownstreamNoiseMargin, "DownstreamNoiseMargin"),
                           });

inline constexpr auto kDslChannel =
    page<ZintuDslLineInfo>("Device.DSL.Channel.1.", Empty::Skip,
                           {
                               FIELD(ZintuDslLineInfo, nUpstreamCurrRate, "UpstreamCurrRate"),
                               FIELD(ZintuDslLineInfo, nDownstreamCurrRate, "DownstreamCurrRate"),
                           });

inline constexpr auto kDslTestParams =
    page<ZintuDslLineInfo>("Device.DSL.Line.1.TestParams.", Empty::Skip,
                           {
                               FIELD_BY(ZintuDslLineInfo, sLATNds, "LATNds", Rule::Whole),
                               FIELD_BY(ZintuDslLineInfo, sLATNus, "LATNus", Rule::Whole),
                           });

inline constexpr auto kDslTotals = page<ZintuDslLineInfo>("Device.DSL.Channel.1.Stats.Total.", Empty::Skip,
                                                          {
                                                              FIELD(ZintuDslLineInfo, nXTURCRCErrors, "XTURCRCErrors"),
                                                              FIELD(ZintuDslLineInfo, nXTUCCRCErrors, "XTUCCRCErrors"),
                                                          });

// From here on, one message asks for the objects of several pages.
inline constexpr auto kLanAddress = page<LANv4Info>("Device.IP.Interface.1.IPv4Address.1", Empty::Store,
                                                    {
                                                        FIELD_BY(LANv4Info, sIPv4Address, "IPAddress", Rule::Padded),
                                                        FIELD_BY(LANv4Info, sIPv4Subnet, "SubnetMask", Rule::Padded),
                                                    });

inline constexpr auto kLanPool = page<LANv4Info>("Device.DHCPv4.Server.Pool.1", Empty::Store,
                                                 {
                                                     FIELD(LANv4Info, bDHCPv4Active, "Enable"),
                                                     FIELD_BY(LANv4Info, sDHCPv4StartIP, "MinAddress", Rule::Padded),
                                                     FIELD_BY(LANv4Info, sDHCPv4EndIP, "MaxAddress", Rule::Padded),
                                                     FIELD(LANv4Info, nLeaseTimeSec, "LeaseTime"),
                                                 });

inline constexpr auto kLanEthernet = page<LANv4Info>("Device.Ethernet.Interface.1", Empty::Store,
                                                     {
                                                         FIELD_BY(LANv4Info, sMACAddr, "MACAddress", Rule::Padded),
                                                     });

inline constexpr auto kLanIpv6 = page<LANv6Info>("Device.IPv6", Empty::Store,
                                                 {
                                                     FIELD(LANv6Info, bIPv6Active, "Enable"),
                                                     FIELD(LANv6Info, sDNSv6Primary, "X_LANTIQ_COM_PRI_DNSv6"),
                                                     FIELD(LANv6Info, sDNSv6Secondary, "X_LANTIQ_COM_SEC_DNSv6"),
                                                     FIELD(LANv6Info, sDomainNamev6, "X_LANTIQ_COM_V6_DOMAIN_NAME"),
                                                     FIELD(LANv6Info, sLANv6Mode, "X_LANTIQ_COM_IPv6_LANMode"),
                                                     FIELD(LANv6Info, bPDActive, "X_ZINTU_PDActive"),
                                                 });

inline constexpr auto kLanPoolV6 = page<LANv6Info>("Device.DHCPv6.Server.Pool.1", Empty::Store,
                                                   {
                                                       FIELD(LANv6Info, sDHCPv6StartIP, "X_ZINTU_MinAddress"),
                                                       FIELD(LANv6Info, sDHCPv6EndIP, "X_ZINTU_MaxAddress"),
                                                       FIELD(LANv6Info, nLeaseTimeSec, "X_ZINTU_PreferredLifetime"),
                                                   });

// All pages. Tests and fuzzers make the answers that they script from this list. A new page goes to the end: the
// fuzzer's corpus names an object by its number.
inline constexpr const frame::PageHead *kPages[] = {
    &kDefaultGateway.head, &kWanAddress.head,    &kPpp.head,       &kDslLine.head,
    &kDslChannel.head,     &kDslTestParams.head, &kDslTotals.head, &kLanAddress.head,
    &kLanPool.head,        &kLanEthernet.head,   &kLanIpv6.head,   &kLanPoolV6.head,
};

} // namespace network
