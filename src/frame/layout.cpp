// SPDX-License-Identifier: MIT
// Pins the layouts that programs outside the library share with it.
#include "caltofal.h"
#include "libhelper.h"

#include <cstddef>

namespace {

// Nodes hold pointers; their sizes are fixed where those have 4 bytes.
constexpr bool is32Bit(size_t actual, size_t expected) {
    return sizeof(void *) != 4 || actual == expected;
}

static_assert(is32Bit(sizeof(MsgHeader), 24));
static_assert(is32Bit(offsetof(MsgHeader, objectList), 20));
static_assert(is32Bit(sizeof(ObjectNode), 676));
static_assert(is32Bit(offsetof(ObjectNode, params), 660));
static_assert(is32Bit(offsetof(ObjectNode, link), 668));
static_assert(is32Bit(sizeof(AttrObjectNode), 2024));
static_assert(is32Bit(offsetof(AttrObjectNode, link), 2016));
static_assert(is32Bit(sizeof(AcsAttrObjectNode), 668));
static_assert(is32Bit(offsetof(AcsAttrObjectNode, link), 660));
static_assert(offsetof(ParamNode, value) == 256);
static_assert(PARAM_VALUE_SIZE >= 1024);
static_assert(offsetof(ObjectNode, link) + sizeof(ListLink) == sizeof(ObjectNode));
static_assert(offsetof(ObjectNode, params) + sizeof(ListLink) == offsetof(ObjectNode, link));

#define AT(Record, field, offset) static_assert(offsetof(Record, field) == (offset))

AT(ZintuWanInfo, sWanIpType, 16);
AT(ZintuWanInfo, sWanLinkType, 32);
AT(ZintuWanInfo, sOperMode, 48);
AT(ZintuWanInfo, sIpv4Mode, 64);
AT(ZintuWanInfo, sIPAddress, 80);
AT(ZintuWanInfo, sSubnetMask, 96);
AT(ZintuWanInfo, sGateway, 112);
AT(ZintuWanInfo, sName, 128);
AT(ZintuWanInfo, sWanIpInterface, 160);
AT(ZintuWanInfo, nWanIpIfIndex, 416);
AT(ZintuWanInfo, sLowerLayers, 420);
AT(ZintuWanInfo, sDescription, 932);
AT(ZintuWanInfo, sPppStaticAddress, 1188);
AT(ZintuWanInfo, sUsername, 1220);
AT(ZintuWanInfo, sPassword, 1284);
AT(ZintuWanInfo, sConnectionTrigger, 1348);
AT(ZintuWanInfo, nIdleDisconnectTime, 1380);
AT(ZintuWanInfo, nMaxMRUSize, 1384);
AT(ZintuWanInfo, sACName, 1388);
AT(ZintuWanInfo, sServiceName, 1644);
AT(ZintuWanInfo, sPppInterface, 1900);
AT(ZintuWanInfo, bDnsAuto, 2156);
AT(ZintuWanInfo, sDNS1, 2160);
AT(ZintuWanInfo, sDNS2, 2176);
AT(ZintuWanInfo, nAtmVpi, 2976);
AT(ZintuWanInfo, nAtmVci, 2980);
AT(ZintuWanInfo, sAtmQoSClass, 2984);
AT(ZintuWanInfo, bVlanEnable, 3048);
AT(ZintuWanInfo, nVlanID, 3052);
AT(ZintuWanInfo, bIpv6Enable, 3312);
AT(ZintuWanInfo, sIpv6Type, 3313);
AT(ZintuWanInfo, sIpv6Address, 3345);
AT(ZintuWanInfo, sIpv6NextHop, 3391);
static_assert(sizeof(ZintuWanInfo) == 3440);

AT(ZintuDslLineInfo, sCurrentProfile, 16);
AT(ZintuDslLineInfo, nUpstreamCurrRate, 544);
AT(ZintuDslLineInfo, nDownstreamCurrRate, 548);
AT(ZintuDslLineInfo, nUpstreamMaxBitRate, 552);
AT(ZintuDslLineInfo, nDownstreamMaxBitRate, 556);
AT(ZintuDslLineInfo, nUpstreamNoiseMargin, 560);
AT(ZintuDslLineInfo, nDownstreamNoiseMargin, 564);
AT(ZintuDslLineInfo, sLATNds, 568);
AT(ZintuDslLineInfo, sLATNus, 600);
AT(ZintuDslLineInfo, nXTURCRCErrors, 632);
AT(ZintuDslLineInfo, nXTUCCRCErrors, 636);
static_assert(sizeof(ZintuDslLineInfo) == 640);

AT(LANv4Info, sIPv4Address, 1);
AT(LANv4Info, sIPv4Subnet, 17);
AT(LANv4Info, sDHCPv4StartIP, 33);
AT(LANv4Info, sDHCPv4EndIP, 49);
AT(LANv4Info, sMACAddr, 65);
AT(LANv4Info, nLeaseTimeSec, 84);
static_assert(sizeof(LANv4Info) == 88);

AT(LANv6Info, sIPv6Address, 1);
AT(LANv6Info, nPrefixLength, 132);
AT(LANv6Info, sLANv6Mode, 136);
AT(LANv6Info, sDNSv6Primary, 264);
AT(LANv6Info, sDNSv6Secondary, 392);
AT(LANv6Info, sDomainNamev6, 520);
AT(LANv6Info, sDHCPv6StartIP, 648);
AT(LANv6Info, sDHCPv6EndIP, 776);
AT(LANv6Info, nLeaseTimeSec, 904);
AT(LANv6Info, bPDActive, 908);
AT(LANv6Info, sManualPrefix, 909);
AT(LANv6Info, nManualPrefixLength, 1040);
static_assert(sizeof(LANv6Info) == 1044);

AT(ZintuMultiWanInfo, nFailOver, 4);
AT(ZintuMultiWanInfo, nWan1Type, 8);
AT(ZintuMultiWanInfo, nWan2Type, 12);
AT(ZintuMultiWanInfo, sWan1Interface, 16);
AT(ZintuMultiWanInfo, sWan2Interface, 144);
static_assert(sizeof(ZintuMultiWanInfo) == 272);

static_assert(sizeof(PairRow) == 254);
static_assert(sizeof(WifiChannelEntry) == 36);
static_assert(sizeof(WifiChannelList) == 3604);
static_assert(sizeof(WifiStaEntry) == 148);
static_assert(sizeof(WifiStaList) == 18948);
static_assert(sizeof(MacAccessEntry) == 260);
AT(MacAccessList, count, 8320);
static_assert(sizeof(WifiParamRow) == 640);
static_assert(sizeof(WifiParamTable) == 64004);
AT(SiteSurveyEntry, channel, 128);
AT(SiteSurveyEntry, rssi, 132);
AT(SiteSurveyEntry, security, 136);
AT(SiteSurveyEntry, encryption, 264);
AT(SiteSurveyEntry, macaddr, 392);
AT(SiteSurveyEntry, bandwidth, 520);
AT(SiteSurveyEntry, phymode, 524);
AT(SiteSurveyEntry, sideband, 652);
AT(SiteSurveyEntry, product, 780);
static_assert(sizeof(SiteSurveyEntry) == 784);

} // namespace
