// SPDX-License-Identifier: MIT
// The LAN page: three objects in one request, then the server's switch. Each parameter is asked for by name, so that
// the answers are small. Objects are known by the start of their paths: nothing of the data model stands below another
// "Device.".
#include "by_hand.h"
#include "page.h"

#include <strings.h>

using namespace by_hand;

namespace {

constexpr char kAnswers[] = R"(
    get Device.IP.Interface.1.IPv4Address.1.
    Device.IP.Interface.1.IPv4Address.1
        Enable = true
        Status = Enabled
        Alias = cpe-LAN-IPv4-1
        IPAddress = 192.168.1.1
        SubnetMask = 255.255.255.0
        AddressingType = Static
        ...

    get Device.DHCPv4.Server.Pool.1.
    Device.DHCPv4.Server.Pool.1
        Enable = true
        Status = Enabled
        Alias = cpe-Pool-1
        Order = 1
        Interface = Device.IP.Interface.1.
        VendorClassID =
        VendorClassIDExclude = false
        VendorClassIDMode = Exact
        ClientID =
        ClientIDExclude = false
        UserClassID =
        UserClassIDExclude = false
        Chaddr =
        ChaddrMask =
        ChaddrExclude = false
        AllowedDevices = All
        MinAddress = 192.168.1.100
        MaxAddress = 192.168.1.199
        ReservedAddresses =
        SubnetMask = 255.255.255.0
        DNSServers = 192.168.1.1
        DomainName = home.example.net
        IPRouters = 192.168.1.1
        LeaseTime = 86400
        StaticAddressNumberOfEntries = 0
        OptionNumberOfEntries = 0
        ClientNumberOfEntries = 12

    get Device.Ethernet.Interface.1.
    Device.Ethernet.Interface.1
        Enable = true
        Status = Up
        Alias = cpe-EthIf-1
        Name = eth0_1
        LastChange = 389402
        LowerLayers =
        Upstream = false
        MACAddress = 02:00:5E:10:00:00
        SupportedLinkModes = 10-Half,10-Full,100-Half,100-Full,1000-Full
        MaxBitRate = 1000
        CurrentBitRate = 1000
        DuplexMode = Full
        EEECapability = true
        EEEEnable = false
        EEEStatus = Disabled
        ...

    get Device.DHCPv4.Server.
    Device.DHCPv4.Server
        Enable = true
        PoolNumberOfEntries = 2
        ...
)";

template <size_t Size>
void copyPadded(char (&field)[Size], const char *value) {
    memset(field, 0, Size);
    memcpy(field, value, strnlen(value, Size));
}

uint8_t flag(const char *value) {
    return is(value, "true") || is(value, "1") || strcasecmp(value, "true") == 0 ? 1 : 0;
}

void readPoolParam(LANv4Info *info, const char *name, const char *value) {
    if (is(name, "Enable")) {
        info->bDHCPv4Active = flag(value);
    } else if (is(name, "MinAddress")) {
        copyPadded(info->sDHCPv4StartIP, value);
    } else if (is(name, "MaxAddress")) {
        copyPadded(info->sDHCPv4EndIP, value);
    } else if (is(name, "LeaseTime")) {
        info->nLeaseTimeSec = number(value);
    }
}

void readObject(LANv4Info *info, const ObjectNode &object) {
    if (begins(object.name, "Device.IP.Interface.1.IPv4Address.1")) {
        eachParam(object, [info](const char *name, const char *value) {
            if (is(name, "IPAddress")) {
                copyPadded(info->sIPv4Address, value);
            } else if (is(name, "SubnetMask")) {
                copyPadded(info->sIPv4Subnet, value);
            }
        });
    } else if (begins(object.name, "Device.DHCPv4.Server.Pool.1")) {
        eachParam(object, [info](const char *name, const char *value) { readPoolParam(info, name, value); });
    } else if (begins(object.name, "Device.Ethernet.Interface.1")) {
        eachParam(object, [info](const char *name, const char *value) {
            if (is(name, "MACAddress")) {
                copyPadded(info->sMACAddr, value);
            }
        });
    }
}

int readObjects(LANv4Info *info) {
    MsgHeader message;
    int code = -1;
    if (begin(message, CALTOFAL_OPER_GET, CALTOFAL_LIST_GET, CALTOFAL_OWNER_HOST)) {
        ObjectNode *node = object(message, "Device.IP.Interface.1.IPv4Address.1.");
        param(node, "IPAddress");
        param(node, "SubnetMask");
        node = object(message, "Device.DHCPv4.Server.Pool.1.");
        param(node, "Enable");
        param(node, "MinAddress");
        param(node, "MaxAddress");
        param(node, "LeaseTime");
        param(object(message, "Device.Ethernet.Interface.1."), "MACAddress");
        code = locked(cal_getValue, message);
        if (code == 0) {
            eachObject(message, [info](const ObjectNode &object) { readObject(info, object); });
        }
    }
    release(message);
    return code == 0 ? 0 : -1;
}

int readSwitch(LANv4Info *info) {
    MsgHeader message;
    int code = -1;
    if (begin(message, CALTOFAL_OPER_GET, CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST)) {
        param(object(message, "Device.DHCPv4.Server."), "Enable");
        code = locked(cal_getValue, message);
        if (code == 0) {
            eachObject(message, [info](const ObjectNode &object) {
                if (begins(object.name, "Device.DHCPv4.Server")) {
                    eachParam(object, [info](const char *name, const char *value) {
                        if (is(name, "Enable") && flag(value) == 0) {
                            info->bDHCPv4Active = 0;
                        }
                    });
                }
            });
        }
    }
    release(message);
    return code;
}

int quietFloorPage(LANv4Info *info) {
    return readObjects(info) == 0 ? readSwitch(info) : -1;
}

void printResult(const LANv4Info *info) {
    char line[512];
    char *end = append(line, "return pxLANv4Info value : sIPv4Address = ");
    end = append(appendField(end, info->sIPv4Address), " , sIPv4Subnet = ");
    end = append(appendField(end, info->sIPv4Subnet), " , bDHCPv4Active = ");
    end = append(append(end, info->bDHCPv4Active), " , sDHCPv4StartIP = ");
    end = append(appendField(end, info->sDHCPv4StartIP), " , sDHCPv4EndIP = ");
    end = append(appendField(end, info->sDHCPv4EndIP), " , nLeaseTimeSec = ");
    end = append(append(end, info->nLeaseTimeSec), " , sMACAddr = ");
    end = append(appendField(end, info->sMACAddr), " \n");
    print(line, static_cast<size_t>(end - line));
}

// The page's console lines are part of what it does: constants, and one that is put together.
int floorPage(LANv4Info *info) {
    constexpr char kTag[] = "[ZINTU VOLA FAL] (ZintuNetworkGet:10, ZintuGet_LANv4Info) ";
    print(kTag);
    print("START_FUNCTION : FAL \n");
    const int code = quietFloorPage(info);
    if (code == 0) {
        print(kTag);
        printResult(info);
    }
    return code;
}

bench::Page lanIpv4() {
    return bench::limited(bench::page<ZintuGet_LANv4Info, floorPage>("lan-ipv4", kAnswers, bench::Growth::Objects),
                          1.195, 2.36);
}

// The same against a floor that writes nothing to the console: what the lines cost.
bench::Page lanIpv4Quiet() {
    return bench::page<ZintuGet_LANv4Info, quietFloorPage>("lan-ipv4-quiet", kAnswers, bench::Growth::None);
}

const bench::AddPage kAdded(lanIpv4());
const bench::AddPage kAddedQuiet(lanIpv4Quiet());

} // namespace
