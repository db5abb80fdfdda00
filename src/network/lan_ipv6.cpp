// SPDX-License-Identifier: MIT
// LAN page, IPv6: state, address, DNS, DHCPv6 range, prefix delegation, manual prefix.
#include "frame/bounded_text.h"
#include "frame/console.h"
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "frame/trace.h"
#include "network/pages.h"
#include "network/request.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr int32_t kPrefixLength = 64;
constexpr int32_t kHostLength = 128;

// "address/length", or an address alone. A value of one character is not an address.
bool storeAddress(LANv6Info &info, const char *value) {
    if (strnlen(value, 2) < 2) {
        return false;
    }
    const char *slash = strchr(value, '/');
    copyText(info.sIPv6Address, sizeof(info.sIPv6Address), value,
             slash ? static_cast<size_t>(slash - value) : sizeof(info.sIPv6Address));
    info.nPrefixLength = slash ? atoi(slash + 1) : kHostLength;
    return true;
}

bool storeAddresses(LANv6Info &info, ObjectNode &object) {
    bool found = false;
    forEachValue(object, "IPAddress", [&](const char *value) { found = storeAddress(info, value) || found; });
    return found;
}

void storeManualPrefix(LANv6Info &info, ObjectNode &object) {
    forEachValue(object, "ManualPrefixes", [&info](const char *prefix) {
        copyText(info.sManualPrefix, prefix);
        info.nManualPrefixLength = kPrefixLength;
    });
}

// Objects are told apart by what their name contains, in this order. Whether an address was found.
bool fillFrom(ObjectNode &object, LANv6Info &info) {
    if (strstr(object.name, kLanIpv6.object())) {
        fill(object, kLanIpv6, info);
    } else if (strstr(object.name, "Device.RouterAdvertisement.InterfaceSetting.1")) {
        storeManualPrefix(info, object);
    } else if (strstr(object.name, "Device.IP.Interface.1.IPv6Address.1")) {
        return storeAddresses(info, object);
    } else if (strstr(object.name, kLanPoolV6.object())) {
        fill(object, kLanPoolV6, info);
    } else {
        traceVola({Unit::NetworkGet, 1774, "ZintuGet_LANv6Info"}, "Received unhandled object = %s\n", object.name);
    }
    return false;
}

void synthesiseAddress(LANv6Info &info) {
    char address[sizeof(info.sManualPrefix) + 2];
    snprintf(address, sizeof(address), "%s1", Terminated(info.sManualPrefix).c_str());
    copyText(info.sIPv6Address, address);
    info.nPrefixLength = kPrefixLength;
}

struct Request {
    char object[52];
    int line;
};

// An "&" queues; the last one sends.
constexpr Request kRequests[] = {
    {"Device.IPv6.&", 1670},
    {"Device.IP.Interface.1.IPv6Address.1.&", 1674},
    {"Device.RouterAdvertisement.InterfaceSetting.1.&", 1678},
    {"Device.DHCPv6.Server.Pool.1.", 1682},
};

// 0, or the source line of the call that failed.
int requestIPv6(MsgHeader *message) {
    for (const Request &row : kRequests) {
        if (faltocal_send_main_multi_obj(message, row.object, "get", "get", 0) == -1) {
            return row.line;
        }
    }
    return 0;
}

void traceResult(const LANv6Info &info, Place place) {
    // One byte narrower than the console's line, which keeps room for the newline.
    const BoundedText<kConsoleSize - 1> values(
        "return pxLANv6Info value : bIPv6Active = %d , sIPv6Address = %s ,  nPrefixLength = %d , "
        "sLANv6Mode = %s , sDNSv6Primary = %s , sDNSv6Secondary = %s , sDomainNamev6 = %s , "
        "sDHCPv6StartIP = %s , sDHCPv6EndIP = %s , nLeaseTimeSec = %d , bPDActive = %d , "
        "sManualPrefix = %s , nManualPrefixLength = %d ",
        info.bIPv6Active, Terminated(info.sIPv6Address).c_str(), info.nPrefixLength,
        Terminated(info.sLANv6Mode).c_str(), Terminated(info.sDNSv6Primary).c_str(),
        Terminated(info.sDNSv6Secondary).c_str(), Terminated(info.sDomainNamev6).c_str(),
        Terminated(info.sDHCPv6StartIP).c_str(), Terminated(info.sDHCPv6EndIP).c_str(), info.nLeaseTimeSec,
        info.bPDActive, Terminated(info.sManualPrefix).c_str(), info.nManualPrefixLength);
    traceVola(place, "%s\n", values.c_str());
}

} // namespace

int32_t ZintuGet_LANv6Info(LANv6Info *pxLANv6Info) {
    traceVola(Unit::NetworkGet, "START_FUNCTION : FAL \n");
    Message message;
    if (const int line = requestIPv6(message)) {
        traceFailedRequest(line);
        return -1;
    }
    bool hasAddress = false;
    for (ObjectNode &object : objects(*message)) {
        hasAddress = fillFrom(object, *pxLANv6Info) || hasAddress;
    }
    if (!hasAddress) {
        synthesiseAddress(*pxLANv6Info);
    }
    traceResult(*pxLANv6Info, Unit::NetworkGet);
    return 0;
}
