// SPDX-License-Identifier: MIT
// LAN page, IPv4: address, DHCP server, MAC address.
#include "field_tables.h"
#include "lookup.h"
#include "range.h"
#include "request.h"
#include "text.h"

using namespace frame;
using namespace network;

namespace {

// Objects are told apart by what their name contains.
struct Page {
    std::string_view namePart;
    Fields fields;
};

constexpr Page kPages[] = {
    {"Device.IP.Interface.1.IPv4Address.1", kLanAddress},
    {"Device.DHCPv4.Server.Pool.1", kLanPool},
    {"Device.Ethernet.Interface.1", kLanEthernet},
};

void fillFrom(ObjectNode &object, LANv4Info &info) {
    for (const Page &page : kPages) {
        if (contains(object.name, page.namePart)) {
            fill(object, page.fields, info);
            return;
        }
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
        if (!contains(object.name, "Device.DHCPv4.Server")) {
            continue;
        }
        for (const ParamNode &param : params(object)) {
            if (isNamed(param, "Enable") && atob(param.value) == 0) {
                info.bDHCPv4Active = 0;
            }
        }
    }
}

void traceResult(const LANv4Info &info, int line = __builtin_LINE(), const char *function = __builtin_FUNCTION()) {
    traceVola(kNetworkGet, line, function);
    PRINT_TO_CONSOLE("return pxLANv4Info value : sIPv4Address = %s , sIPv4Subnet = %s , bDHCPv4Active = %d , "
                     "sDHCPv4StartIP = %s , sDHCPv4EndIP = %s , nLeaseTimeSec = %d , sMACAddr = %s \n",
                     Terminated(info.sIPv4Address).c_str(), Terminated(info.sIPv4Subnet).c_str(), info.bDHCPv4Active,
                     Terminated(info.sDHCPv4StartIP).c_str(), Terminated(info.sDHCPv4EndIP).c_str(), info.nLeaseTimeSec,
                     Terminated(info.sMACAddr).c_str());
}

} // namespace

int32_t ZintuGet_LANv4Info(LANv4Info *pxLANv4Info) {
    traceVola(kNetworkGet);
    PRINT_TO_CONSOLE("START_FUNCTION : FAL \n");
    Message message;
    if (const int line = request(message)) {
        traceError(line);
        PRINT_TO_CONSOLE("faltocal_send_main_multi_obj is Failure\n");
        return -1;
    }
    for (ObjectNode &object : objects(*message)) {
        fillFrom(object, *pxLANv4Info);
    }
    message.reset();
    const int code = faltocal_SendMultiObj(1, 256, 2, message, "Device.DHCPv4.Server.", "get", "get", 1, "Enable");
    if (code == -1) {
        traceError(1629);
        PRINT_TO_CONSOLE("faltocal_SendMultiObj is Failure \n");
        return -1;
    }
    applyServerSwitch(message, *pxLANv4Info);
    traceResult(*pxLANv4Info);
    return code;
}
