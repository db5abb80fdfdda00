// SPDX-License-Identifier: MIT
// The WAN of a device in bridge mode: its first IP interface.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "network/ipv4_forwarding.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr char kInterface[] = "Device.IP.Interface.1.";

void writeFixedValues(uint32_t flags, ZintuWanInfo *info) {
    copyText(info->sOperMode, "bridge");
    copyText(info->sWanIpInterface, kInterface);
    copyText(info->sWanIpType, "dynamic");
    copyText(info->sWanLinkType, (flags & CALTOFAL_BRIDGED_WAN_WIFI) != 0 ? "wifi" : "ethernet");
    copyText(info->sIpv4Mode, "dynamic");
    info->bVlanEnable = 0;
    info->nVlanID = 0;
}

void readInterface(ZintuWanInfo *info) {
    Message message;
    if (getObject(message, kInterface) != 0) {
        return;
    }
    if (const char *lowerLayers = findValue(*message, "LowerLayers")) {
        copyText(info->sLowerLayers, lowerLayers);
    }
    if (const char *name = findValue(*message, "Name")) {
        copyText(info->sName, name);
    }
}

// The interface is up when it holds an address that DHCP gave.
void readBridgeAddress(ZintuWanInfo *info) {
    const char *description = nullptr;
    const char *address = nullptr;
    const char *mask = nullptr;
    Message message;
    if (getObject(message, "Device.IP.Interface.1.IPv4Address.1.") == 0) {
        description = findValue(*message, "X_LANTIQ_COM_Description");
        address = findValue(*message, "IPAddress");
        mask = findValue(*message, "SubnetMask");
    }
    constexpr char kNoAddress[] = "0.0.0.0";
    const bool up =
        description && address && mask && strstr(description, "DHCP") && *address && !beginsWith(address, kNoAddress);
    copyText(info->sStatus, up ? "Up" : "Down");
    copyText(info->sDescription, up ? description : kNoAddress);
    copyText(info->sIPAddress, up ? address : kNoAddress);
    copyText(info->sSubnetMask, up ? mask : kNoAddress);
}

// The last qualifying entry wins.
int readGateway(ZintuWanInfo *info) {
    Message message;
    const int code = getInstances(message, kForwardingTable, "Interface", kInterface);
    if (code != 0) {
        return code;
    }
    for (ObjectNode &entry : objects(*message)) {
        if (const char *gateway = gatewayOf(findValue(entry, "GatewayIPAddress"), findValue(entry, "Origin"))) {
            copyText(info->sGateway, gateway);
        }
    }
    return 0;
}

} // namespace

int32_t ZintuGet_BrWanInfo(uint32_t flags, ZintuWanInfo *info) {
    if ((flags & CALTOFAL_BRIDGED_WAN_REFUSE) != 0) {
        return -1;
    }
    writeFixedValues(flags, info);
    readInterface(info);
    readBridgeAddress(info);
    const int code = readGateway(info);
    info->bDnsAuto = 1;
    ZintuGet_WanDns(kInterface, info->sDNS1, info->sDNS2);
    info->bIpv6Enable = 0;
    copyText(info->sIpv6Type, "dhcpv6");
    return code;
}
