// SPDX-License-Identifier: MIT
// The default WAN summary: everything that the user interface shows about the connection with the default route.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "frame/trace.h"
#include "network/ipv4_forwarding.h"
#include "network/pages.h"
#include "network/path.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr char kIpInterface[] = "Device.IP.Interface.";
constexpr char kVlanTermination[] = "Device.Ethernet.VLANTermination";

// One call's working state, from the moment that the interface is known.
struct Summary {
    explicit Summary(ZintuWanInfo &wan) : info(wan), interface(wan.sWanIpInterface) { vlan[0] = '\0'; }

    ZintuWanInfo &info;
    const Terminated<sizeof(ZintuWanInfo::sWanIpInterface)> interface;
    char vlan[256]; // VLAN termination object below the WAN, where there is one
};

void keepVlan(Summary &summary, const char *lowerLayers) {
    if (beginsWith(lowerLayers, kVlanTermination)) {
        copyText(summary.vlan, lowerLayers);
    }
}

// Copies a value at its own length from a field on: it may run on into the fields after it.
void copyOverrunning(ZintuWanInfo &info, char *field, const char *value) {
    const auto offset = static_cast<size_t>(field - reinterpret_cast<char *>(&info));
    copyExact(field, sizeof(info) - offset, value);
}

void readInterface(Summary &summary) {
    ZintuWanInfo &info = summary.info;
    Message message;
    if (getObject(message, summary.interface) != 0) {
        return;
    }
    for (ObjectNode &object : objects(*message)) {
        for (const ParamNode &param : params(object)) {
            if (isNamed(param, "Status")) {
                memset(info.sStatus, 0, sizeof(info.sStatus));
                copyText(info.sStatus, strcmp(param.value, "Up") == 0 ? "Up" : "Down");
            } else if (isNamed(param, "LowerLayers")) {
                memset(info.sLowerLayers, 0, sizeof(info.sLowerLayers));
                copyOverrunning(info, info.sLowerLayers, param.value);
                keepVlan(summary, param.value);
            } else if (isNamed(param, "Name")) {
                memset(info.sName, 0, sizeof(info.sName));
                copyText(info.sName, param.value);
            }
        }
        break; // the interface itself, not what lies below it
    }
}

struct AddressingRow {
    char addressing[24];
    char type[8];
};

constexpr AddressingRow kAddressing[] = {
    {"DHCP", "dynamic"},
    {"Static", "static"},
    {"X_LANTIQ_COM_PPPoE", "pppoe"},
    {"X_LANTIQ_COM_PPPoA", "pppoa"},
    {"X_LANTIQ_COM_PPTP", "pptp"},
    {"X_LANTIQ_COM_L2TP", "l2tp"},
    {"X_LANTIQ_COM_Bridged", "dynamic"},
};

// Words are written over what the field held, without a terminator.
void storeAddressing(ZintuWanInfo &info, const char *value) {
    writeWord(info.sOperMode, "router");
    for (const AddressingRow &row : kAddressing) {
        if (strcmp(value, row.addressing) == 0) {
            copyExact(info.sWanIpType, sizeof(info.sWanIpType), row.type);
            break;
        }
    }
    if (strcmp(value, "Static") == 0) {
        writeWord(info.sIpv4Mode, "static");
    } else if (strcmp(value, "X_LANTIQ_COM_Bridged") == 0) {
        writeWord(info.sOperMode, "bridge");
    }
}

void readAddress(const Summary &summary) {
    ZintuWanInfo &info = summary.info;
    const Path path("%s%s", summary.interface.c_str(), kWanAddress.object());
    Message message;
    if (getObject(message, path) != 0) {
        return;
    }
    for (ObjectNode &object : objects(*message)) {
        fill(object, kWanAddress, info);
        forEachValue(object, "AddressingType", [&info](const char *type) { storeAddressing(info, type); });
    }
}

const char *triggerWord(const char *trigger) {
    if (strcmp(trigger, "ondemand") == 0) {
        return "ondemand";
    }
    return strcmp(trigger, "manual") == 0 ? "manual" : "always";
}

void readPpp(Summary &summary) {
    ZintuWanInfo &info = summary.info;
    if (!contains(Terminated(info.sWanIpType), "ppp") || !*info.sLowerLayers) {
        return;
    }
    copyPadded(info.sPppInterface, sizeof(info.sPppInterface), Terminated(info.sLowerLayers));
    Message message;
    if (faltocal_send_main_multi_obj(message, Terminated(info.sPppInterface), "get", "get", 0) != 0) {
        traceVola({Unit::NetworkGet, 636, "ZintuGet_DefWanInfo"}, "faltocal_send_main_multi_obj function failed. \n");
        return;
    }
    for (ObjectNode &object : objects(*message)) {
        fill(object, kPpp, info);
        for (const ParamNode &param : params(object)) {
            if (*param.value && isNamed(param, "ConnectionTrigger")) {
                copyText(info.sConnectionTrigger, triggerWord(param.value));
            } else if (isNamed(param, "LowerLayers")) {
                keepVlan(summary, param.value);
            }
        }
    }
}

int interfaceIndex(const char *path) {
    constexpr size_t kPrefixLength = sizeof(kIpInterface) - 1;
    return strlen(path) > kPrefixLength ? number(path + kPrefixLength) : 0;
}

// The last qualifying entry wins.
int readGateway(const Summary &summary) {
    ZintuWanInfo &info = summary.info;
    info.nWanIpIfIndex = interfaceIndex(summary.interface);
    const Path path("%s%d.", kIpInterface, info.nWanIpIfIndex);
    Message message;
    const int code = getInstances(message, kForwardingTable, "Interface", path);
    if (code != 0) {
        return code;
    }
    for (ObjectNode &entry : objects(*message)) {
        enum : uint8_t { kGateway, kOrigin, kCount };
        constexpr const char *kNames[kCount] = {"GatewayIPAddress", "Origin"};
        const char *values[kCount];
        findOrTrace(entry, kNames, values);
        if (const char *gateway = gatewayOf(values[kGateway], values[kOrigin])) {
            copyText(info.sGateway, gateway);
        }
    }
    return 0;
}

int readVlan(const Summary &summary) {
    ZintuWanInfo &info = summary.info;
    Message message;
    const int code = faltocal_send_main_ToDb(message, summary.vlan, "get", "get", 0);
    if (code != 0) {
        return code;
    }
    for (ObjectNode &object : objects(*message)) {
        for (const ParamNode &param : params(object)) {
            if (isNamed(param, "Enable") && isOn(param.value)) {
                info.bVlanEnable = 1;
            } else if (isNamed(param, "VLANID") && number(param.value) != 0) {
                info.nVlanID = number(param.value);
            }
        }
    }
    return 0;
}

bool isUnset(const char (&server)[16]) {
    return beginsWith(Terminated(server), "0.0.0.0");
}

bool isInvalid(const char (&server)[16]) {
    return zintu_isValidIPv4Address(Terminated(server)) != 0;
}

void decideDns(const Summary &summary) {
    ZintuWanInfo &info = summary.info;
    const Terminated type(info.sWanIpType);
    info.bDnsAuto = 1;
    if (contains(type, "dynamic")) {
        ZintuGet_WanStaticDns(summary.interface, &info.bDnsAuto, info.sDNS1, info.sDNS2);
    } else if (contains(type, "static") ||
               (contains(type, "pppoe") && contains(Terminated(info.sIpv4Mode), "static"))) {
        info.bDnsAuto = 0;
    }
    const bool bothUnset = isUnset(info.sDNS1) && isUnset(info.sDNS2);
    if (bothUnset || (isInvalid(info.sDNS1) && isInvalid(info.sDNS2))) {
        ZintuGet_WanDns(summary.interface, info.sDNS1, info.sDNS2);
    }
}

} // namespace

int32_t ZintuGet_DefWanInfo(ZintuWanInfo *info) {
    ZintuGet_DefGw(info);
    if (!*info->sWanIpInterface) {
        return -1;
    }
    Summary summary(*info);
    readInterface(summary);
    readAddress(summary);
    readPpp(summary);
    int code = readGateway(summary);
    if (*summary.vlan) {
        code = readVlan(summary);
    }
    decideDns(summary);
    ZintuGet_WanIPv6(info);
    return code;
}
