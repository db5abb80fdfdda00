// SPDX-License-Identifier: MIT
// LAN page, IPv4: address, DHCP server, MAC address.
#include "frame/console.h"
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "frame/trace.h"
#include "network/pages.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

// The location tag of a line that is traced when all goes well, as traceVola() writes it: through that, the first line
// alone brings the page to 3.92 times its floor, where its limit is 2.36.
#define LINE_TEXT(line) #line
#define LINE_OF(line) LINE_TEXT(line)
#define TAG "[ZINTU VOLA FAL] (ZintuNetworkGet:" LINE_OF(__LINE__) ", ZintuGet_LANv4Info) "

template <size_t Size>
void writeLiteral(const char (&literal)[Size]) {
    writeToConsole(literal, Size - 1);
}

// As contains(), for an object's name, whose buffer is longer than any part. Most names begin with the part: through
// contains() alone the page costs 3.11 times its floor, where its limit is 2.36.
bool nameContains(const ObjectNode &object, std::string_view part) {
    return memcmp(object.name, part.data(), part.size()) == 0 || (*object.name && strstr(object.name + 1, part.data()));
}

// Fills from an object whose name contains the page's path.
template <class Page>
bool fillWhereNamed(ObjectNode &object, const Page &page, LANv4Info &info) {
    const bool belongs = nameContains(object, {page.path, sizeof(page.path) - 1});
    if (belongs) {
        fill(object, page, info);
    }
    return belongs;
}

// The first page whose path the object's name contains reads the object.
void fillFrom(ObjectNode &object, LANv4Info &info) {
    fillWhereNamed(object, kLanAddress, info) || fillWhereNamed(object, kLanPool, info) ||
        fillWhereNamed(object, kLanEthernet, info);
}

// 0, or the source line of the call that failed.
int requestIPv4(MsgHeader *message) {
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
        if (nameContains(object, "Device.DHCPv4.Server")) {
            forEachValue(object, "Enable", [&info](const char *enable) {
                if (atob(enable) == 0) {
                    info.bDHCPv4Active = 0;
                }
            });
        }
    }
}

// A line put together from pieces whose lengths are known: through printf() the page costs 1.36 times its floor in all,
// where its limit is 1.195.
class Line {
  public:
    template <size_t Size>
    Line &add(const char (&literal)[Size]) {
        end_ = static_cast<char *>(mempcpy(end_, literal, Size - 1));
        return *this;
    }
    // A full field has no terminator.
    template <size_t Size>
    Line &addField(const char (&field)[Size]) {
        end_ = static_cast<char *>(mempcpy(end_, field, strnlen(field, Size)));
        return *this;
    }
    Line &add(int number) {
        end_ = putNumber(end_, number);
        return *this;
    }
    void write() const { writeToConsole(text_, static_cast<size_t>(end_ - text_)); }

  private:
    char text_[400];
    char *end_ = text_;
};

void traceResult(const LANv4Info &info) {
    Line line;
    line.add("return pxLANv4Info value : sIPv4Address = ").addField(info.sIPv4Address);
    line.add(" , sIPv4Subnet = ").addField(info.sIPv4Subnet);
    line.add(" , bDHCPv4Active = ").add(info.bDHCPv4Active);
    line.add(" , sDHCPv4StartIP = ").addField(info.sDHCPv4StartIP);
    line.add(" , sDHCPv4EndIP = ").addField(info.sDHCPv4EndIP);
    line.add(" , nLeaseTimeSec = ").add(info.nLeaseTimeSec);
    line.add(" , sMACAddr = ").addField(info.sMACAddr);
    line.add(" \n").write();
}

} // namespace

int32_t ZintuGet_LANv4Info(LANv4Info *pxLANv4Info) {
    writeLiteral(TAG);
    writeLiteral("START_FUNCTION : FAL \n");
    Message message;
    if (const int line = requestIPv4(message)) {
        traceFailedRequest(line);
        return -1;
    }
    LANv4Info info = *pxLANv4Info; // the caller's record changes only after all has gone well
    for (ObjectNode &object : objects(*message)) {
        fillFrom(object, info);
    }
    message.reset();
    const int code = getParamForCode(message, "Device.DHCPv4.Server.", "Enable");
    if (code == -1) {
        traceError(1629, "faltocal_SendMultiObj is Failure \n");
        return -1;
    }
    applyServerSwitch(message, info);
    *pxLANv4Info = info;
    writeLiteral(TAG);
    traceResult(info);
    return code;
}
