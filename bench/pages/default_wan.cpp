// SPDX-License-Identifier: MIT
// The default WAN summary of a DSL line with DHCP over a VLAN: eleven requests, five of them in other pages' functions.
#include "default_wan.h"

#include "page.h"

#include <algorithm>

using namespace by_hand;
using namespace default_wan;

namespace {

constexpr char kAnswers[] =
#include "default_wan.answers"
    ;

constexpr size_t kPathSize = 288;

// Copies a value's characters, at most up to the record's end.
void copyOverrunning(ZintuWanInfo *info, char *field, const char *value) {
    memcpy(field, value, strnlen(value, static_cast<size_t>(reinterpret_cast<char *>(info + 1) - field)));
}

// Calls `read` with each name and value of an answer.
template <class Read>
void readAll(const MsgHeader &message, Read read) {
    eachObject(message, [&](const ObjectNode &object) { eachParam(object, read); });
}

void readDefaultGateway(ZintuWanInfo *info) {
    MsgHeader message;
    if (get(message, "Device.X_ZINTU_CurrentNetwork") == 0) {
        readAll(message, [info](const char *name, const char *value) {
            switch (four(name)) {
            case four("WanI"):
                if (is(name, "WanIpInterface")) {
                    copyOverrunning(info, info->sWanIpInterface, value);
                } else if (is(name, "WanIpType")) {
                    copyOverrunning(info, info->sWanIpType, value);
                }
                break;
            case four("WanL"):
                if (is(name, "WanLinkType")) {
                    copyOverrunning(info, info->sWanLinkType, value);
                }
                break;
            case four("Ipv4"):
                if (is(name, "Ipv4Mode")) {
                    copyOverrunning(info, info->sIpv4Mode, value);
                }
                break;
            case four("PppS"):
                if (is(name, "PppStaticAddress")) {
                    copyOverrunning(info, info->sPppStaticAddress, value);
                } else if (is(name, "PppStaticDNS1")) {
                    copyOverrunning(info, info->sDNS1, value);
                } else if (is(name, "PppStaticDNS2")) {
                    copyOverrunning(info, info->sDNS2, value);
                }
                break;
            default:
                break;
            }
        });
    }
    release(message);
}

void keepVlan(Call &call, const char *lowerLayers) {
    if (begins(lowerLayers, "Device.Ethernet.VLANTermination")) {
        copy(call.vlan, lowerLayers);
    }
}

void readInterfaceParam(Call &call, const char *name, const char *value) {
    ZintuWanInfo *info = call.info;
    switch (four(name)) {
    case four("Status"):
        if (is(name, "Status")) {
            memset(info->sStatus, 0, sizeof(info->sStatus));
            if (is(value, "Up")) {
                memcpy(info->sStatus, "Up", sizeof("Up"));
            } else {
                memcpy(info->sStatus, "Down", sizeof("Down"));
            }
        }
        break;
    case four("LowerLayers"):
        if (is(name, "LowerLayers")) {
            memset(info->sLowerLayers, 0, sizeof(info->sLowerLayers));
            copyOverrunning(info, info->sLowerLayers, value);
            keepVlan(call, value);
        }
        break;
    case four("Name"):
        if (is(name, "Name")) {
            memset(info->sName, 0, sizeof(info->sName));
            copy(info->sName, value);
        }
        break;
    default:
        break;
    }
}

void readInterface(Call &call) {
    MsgHeader message;
    if (get(message, call.interface) == 0) {
        const ObjectNode *first = caltofal_nextObject(&message, nullptr);
        if (first) {
            eachParam(*first, [&](const char *name, const char *value) { readInterfaceParam(call, name, value); });
        }
    }
    release(message);
}

void readAddressingType(ZintuWanInfo *info, const char *value) {
    memcpy(info->sOperMode, "router", 6);
    if (is(value, "DHCP")) {
        memcpy(info->sWanIpType, "dynamic", 7);
    } else if (is(value, "Static")) {
        memcpy(info->sWanIpType, "static", 6);
        memcpy(info->sIpv4Mode, "static", 6);
    } else if (is(value, "X_LANTIQ_COM_PPPoE")) {
        memcpy(info->sWanIpType, "pppoe", 5);
    } else if (is(value, "X_LANTIQ_COM_PPPoA")) {
        memcpy(info->sWanIpType, "pppoa", 5);
    } else if (is(value, "X_LANTIQ_COM_PPTP")) {
        memcpy(info->sWanIpType, "pptp", 4);
    } else if (is(value, "X_LANTIQ_COM_L2TP")) {
        memcpy(info->sWanIpType, "l2tp", 4);
    } else if (is(value, "X_LANTIQ_COM_Bridged")) {
        memcpy(info->sWanIpType, "dynamic", 7);
        memcpy(info->sOperMode, "bridge", 6);
    }
}

void readAddressParam(ZintuWanInfo *info, const char *name, const char *value) {
    switch (four(name)) {
    case four("AddressingType"):
        if (is(name, "AddressingType")) {
            readAddressingType(info, value);
        }
        break;
    case four("IPAddress"):
        if (is(name, "IPAddress")) {
            copy(info->sIPAddress, value);
        }
        break;
    case four("SubnetMask"):
        if (is(name, "SubnetMask")) {
            copy(info->sSubnetMask, value);
        }
        break;
    case four("X_LANTIQ"):
        if (is(name, "X_LANTIQ_COM_Description")) {
            copyOverrunning(info, info->sDescription, value);
        }
        break;
    default:
        break;
    }
}

void readAddress(Call &call) {
    char path[kPathSize];
    append(static_cast<char *>(mempcpy(path, call.interface, call.length)), ".IPv4Address");
    MsgHeader message;
    if (get(message, path) == 0) {
        readAll(message, [&](const char *name, const char *value) { readAddressParam(call.info, name, value); });
    }
    release(message);
}

void readPppParam(Call &call, const char *name, const char *value) {
    ZintuWanInfo *info = call.info;
    if (is(name, "ConnectionTrigger")) {
        if (is(value, "ondemand") || is(value, "manual")) {
            copy(info->sConnectionTrigger, value);
        } else {
            copy(info->sConnectionTrigger, "always");
        }
    } else if (is(name, "LowerLayers")) {
        keepVlan(call, value);
    } else if (is(name, "IdleDisconnectTime")) {
        info->nIdleDisconnectTime = number(value);
    } else if (is(name, "Username")) {
        copy(info->sUsername, value);
    } else if (is(name, "Password")) {
        copy(info->sPassword, value);
    } else if (is(name, "MaxMRUSize")) {
        info->nMaxMRUSize = number(value);
    } else if (is(name, "ACName")) {
        copy(info->sACName, value);
    } else if (is(name, "ServiceName")) {
        copy(info->sServiceName, value);
    }
}

void readPpp(Call &call) {
    ZintuWanInfo *info = call.info;
    if (!memmem(info->sWanIpType, sizeof(info->sWanIpType), "ppp", 3) || !*info->sLowerLayers) {
        return;
    }
    memset(info->sPppInterface, 0, sizeof(info->sPppInterface));
    memcpy(info->sPppInterface, info->sLowerLayers, strnlen(info->sLowerLayers, sizeof(info->sLowerLayers)));
    char path[sizeof(info->sPppInterface) + 1] = "";
    memcpy(path, info->sPppInterface, sizeof(info->sPppInterface));
    MsgHeader message;
    if (get(message, path, CALTOFAL_LIST_GET, CALTOFAL_OWNER_HOST) == 0) {
        readAll(message, [&](const char *name, const char *value) {
            if (*value) {
                readPppParam(call, name, value);
            }
        });
    }
    release(message);
}

bool isDefaultRouteOrigin(const char *origin) {
    return begins(origin, "DHCPv4") || begins(origin, "Static") || begins(origin, "X_LANTIQ_COM_PPPoE");
}

int readGateway(Call &call) {
    constexpr size_t kPrefix = sizeof("Device.IP.Interface.") - 1;
    ZintuWanInfo *info = call.info;
    info->nWanIpIfIndex = call.length > kPrefix ? number(call.interface + kPrefix) : 0;
    char path[kPathSize];
    append(append(append(path, "Device.IP.Interface."), info->nWanIpIfIndex), ".");
    MsgHeader message;
    const int code = getFiltered(message, "Device.Routing.Router.1.IPv4Forwarding.", "Interface", path);
    if (code == 0) {
        eachObject(message, [info](const ObjectNode &entry) {
            const char *gateway = nullptr;
            const char *origin = nullptr;
            eachParam(entry, [&](const char *name, const char *value) {
                if (!gateway && is(name, "GatewayIPAddress")) {
                    gateway = value;
                } else if (!origin && is(name, "Origin")) {
                    origin = value;
                }
            });
            if (gateway && origin && *gateway && isDefaultRouteOrigin(origin)) {
                copy(info->sGateway, gateway);
            }
        });
    }
    release(message);
    return code;
}

int readVlan(Call &call) {
    ZintuWanInfo *info = call.info;
    MsgHeader message;
    const int code = get(message, call.vlan, SOPT_OBJVALUE, CALTOFAL_OWNER_STORE);
    if (code == 0) {
        readAll(message, [info](const char *name, const char *value) {
            if (is(name, "Enable")) {
                if (isOn(value)) {
                    info->bVlanEnable = 1;
                }
            } else if (is(name, "VLANID")) {
                if (const int id = number(value)) {
                    info->nVlanID = id;
                }
            }
        });
    }
    release(message);
    return code;
}

void copyIpv6Type(ZintuWanInfo *info, const char *value) {
    if (strstr(value, "slaac")) {
        copy(info->sIpv6Type, "slaac");
    } else if (!strstr(value, "stateless") && !strstr(value, "stateful") && strstr(value, "static")) {
        copy(info->sIpv6Type, "static");
    } else {
        copy(info->sIpv6Type, "dhcpv6");
    }
}

void copyAddress(char (&field)[46], const char *value) {
    const size_t length = strlen(value);
    if (length <= sizeof(field)) {
        memcpy(field, value, length);
    }
}

// Asks for an object and takes each value of one of its parameters; the message stays with the caller.
template <size_t Size, class Take>
int take(MsgHeader &message, const char *path, const char (&wanted)[Size], Take takeValue) {
    const int code = get(message, path);
    if (code == 0) {
        readAll(message, [&](const char *name, const char *value) {
            if (is(name, wanted)) {
                takeValue(value);
            }
        });
    }
    return code;
}

void readIpv6(Call &call) {
    ZintuWanInfo *info = call.info;
    MsgHeader message;
    take(message, "Device.IPv6.", "Enable",
         [info](const char *value) { info->bIpv6Enable = begins(value, "true") || strstr(value, "true") ? 1 : 0; });
    release(message);
    take(message, "Device.X_ZINTU_CurrentNetwork", "WanIpv6Type", [info](const char *value) {
        if (*value) {
            copyIpv6Type(info, value);
        }
    });
    release(message);
    char path[kPathSize];
    append(static_cast<char *>(mempcpy(path, call.interface, call.length)), ".IPv6Address.1");
    take(message, path, "IPAddress", [info](const char *value) { copyAddress(info->sIpv6Address, value); });
    release(message);
    append(append(append(path, "Device.Routing.Router.1.IPv6Forwarding."), info->nWanIpIfIndex), "");
    take(message, path, "NextHop", [info](const char *value) { copyAddress(info->sIpv6NextHop, value); });
    // The last message is left, as the page's contract asks for.
}

void keepInterface(Call &call) {
    const size_t length = strnlen(call.info->sWanIpInterface, sizeof(call.info->sWanIpInterface));
    memcpy(call.interface, call.info->sWanIpInterface, length);
    call.interface[length] = '\0';
    call.length = length;
    const size_t kept = std::min<size_t>(length, 255);
    memcpy(call.dotted, call.interface, kept);
    call.dottedLength = kept;
    if (call.dotted[kept - 1] != '.') {
        call.dotted[call.dottedLength++] = '.';
    }
}

int floorPage(ZintuWanInfo *info) {
    readDefaultGateway(info);
    if (!*info->sWanIpInterface) {
        return -1;
    }
    Call call;
    call.info = info;
    call.vlan[0] = '\0';
    keepInterface(call);
    readInterface(call);
    readAddress(call);
    readPpp(call);
    int code = readGateway(call);
    if (*call.vlan) {
        code = readVlan(call);
    }
    decideDns(call);
    readIpv6(call);
    return code;
}

const bench::AddPage
    kAdded(bench::limited(bench::page<ZintuGet_DefWanInfo, floorPage>("default-wan", kAnswers, bench::Growth::Params),
                          1.042, 1.51));

} // namespace
