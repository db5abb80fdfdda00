// SPDX-License-Identifier: MIT
// LAN page, IPv4: address, DHCP server, MAC address.
#include "frame/console.h"
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/trace.h"
#include "network/field_tables.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

// contains() for an object's name, which may be compared as far as the part reaches.
bool nameContains(const ObjectNode &object, std::string_view part) {
    return memcmp(object.name, part.data(), part.size()) == 0 || (*object.name && strstr(object.name + 1, part.data()));
}

// Objects are told apart by what their name contains.
void fillFrom(ObjectNode &object, LANv4Info &info) {
    if (nameContains(object, "Device.IP.Interface.1.IPv4Address.1")) {
        fill(object, kLanAddress, info);
    } else if (nameContains(object, "Device.DHCPv4.Server.Pool.1")) {
        fill(object, kLanPool, info);
    } else if (nameContains(object, "Device.Ethernet.Interface.1")) {
        fill(object, kLanEthernet, info);
    }
}

// 0, or the source line of the call that failed.
int request(MsgHeader *message) {
    if (faltocal_send_main_multi_obj(message, "Device.IP.Interface.1.IPv4Address.1.&", "get", "get", 2, "IPAddress",
                                     "SubnetMask") == -1) {
        return 1556;
    }
    if (faltocal_send_main_multi_obj(message, "Device.DHCPv4.Server.Pool.1.&", "get", "get", 4, "Enable", "MinAddress",
                                     "MaxAddress", "LeaseTime") == -1) {
        return 1566;
    }
    return faltocal_send_main_multi_obj(message, "Device.Ethernet.Interface.1.", "get", "get", 1, "MACAddress") == -1
               ? 1572
               : 0;
}

// The server-wide switch overrides the pool's.
void applyServerSwitch(const Message &message, LANv4Info &info) {
    for (ObjectNode &object : objects(*message)) {
        if (!nameContains(object, "Device.DHCPv4.Server")) {
            continue;
        }
        for (const ParamNode &param : params(object)) {
            if (isNamed(param, "Enable") && atob(param.value) == 0) {
                info.bDHCPv4Active = 0;
            }
        }
    }
}

void traceResult(const LANv4Info &info) {
    writePartsToConsole("return pxLANv4Info value : sIPv4Address = ", FieldText{info.sIPv4Address},
                        " , sIPv4Subnet = ", FieldText{info.sIPv4Subnet}, " , bDHCPv4Active = ", info.bDHCPv4Active,
                        " , sDHCPv4StartIP = ", FieldText{info.sDHCPv4StartIP},
                        " , sDHCPv4EndIP = ", FieldText{info.sDHCPv4EndIP}, " , nLeaseTimeSec = ", info.nLeaseTimeSec,
                        " , sMACAddr = ", FieldText{info.sMACAddr}, " \n");
}

} // namespace

int32_t ZintuGet_LANv4Info(LANv4Info *pxLANv4Info) {
    static constexpr VolaTag kStart(Unit::NetworkGet);
    traceVola(kStart);
    PRINT_TO_CONSOLE("START_FUNCTION : FAL \n");
    Message message;
    if (const int line = request(message)) {
        traceFailedRequest(line);
        return -1;
    }
    LANv4Info info = *pxLANv4Info; // the caller's record changes only after all has gone well
    for (ObjectNode &object : objects(*message)) {
        fillFrom(object, info);
    }
    message.reset();
    const int code = faltocal_SendMultiObj(1, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST, message, "Device.DHCPv4.Server.",
                                           "get", "get", 1, "Enable");
    if (code == -1) {
        traceError(1629, "faltocal_SendMultiObj is Failure \n");
        return -1;
    }
    applyServerSwitch(message, info);
    *pxLANv4Info = info;
    static constexpr VolaTag kResult(Unit::NetworkGet);
    traceVola(kResult);
    traceResult(info);
    return code;
}
