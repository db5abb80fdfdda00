// SPDX-License-Identifier: MIT
// Multi-WAN: fail-over or load balancing over two connections.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "network/request.h"

#include <algorithm>
#include <cstring>
#include <iterator>

using namespace frame;
using namespace network;

namespace {

enum Held : uint8_t { kTypeName, kFirstWan, kSecondWan, kEnabled, kHeldCount };

struct HeldRow {
    char object[57];
    char param[10];
};

constexpr HeldRow kHeld[kHeldCount] = {
    {"Device.X_LANTIQ_COM_Multiwan.Multiwan.1.Type", "Name"},
    {"Device.X_LANTIQ_COM_Multiwan.Multiwan.1.WANConnections.1", "Interface"},
    {"Device.X_LANTIQ_COM_Multiwan.Multiwan.1.WANConnections.2", "Interface"},
    {"Device.X_LANTIQ_COM_Multiwan.Multiwan.1", "Enabled"},
};

bool isSkipped(const char *name) {
    constexpr const char *kSkipped[] = {"TrafficSteering", "TCPPing", "MPTCP"};
    return std::any_of(std::begin(kSkipped), std::end(kSkipped),
                       [name](const char *part) { return strstr(name, part); });
}

void takeHeld(ObjectNode &object, const char *(&held)[kHeldCount]) {
    if (isSkipped(object.name)) {
        return;
    }
    for (size_t i = 0; i < kHeldCount; ++i) {
        if (sameName(object.name, kHeld[i].object)) {
            zintu_GetParamFromObjUnit(&object, kHeld[i].param, &held[i]);
        }
    }
}

struct KindRow {
    char prefix[8];
    int32_t kind;
};

int32_t kindByPrefix(const char *text, std::span<const KindRow> rows, int32_t otherwise) {
    for (const KindRow &row : rows) {
        if (beginsWith(text, row.prefix)) {
            return row.kind;
        }
    }
    return otherwise;
}

int32_t kindOfInterface(const char *interface) {
    constexpr KindRow kInterfaces[] = {
        {"w900", CALTOFAL_WAN_ETHERNET}, {"w901", CALTOFAL_WAN_OTHER}, {"w902", CALTOFAL_WAN_TETHERED}};
    constexpr KindRow kModes[] = {{"ETH", CALTOFAL_WAN_ETHERNET}, {"TETHER", CALTOFAL_WAN_TETHERED}};
    const int32_t kind = kindByPrefix(interface, kInterfaces, -1);
    if (kind >= 0) {
        return kind;
    }
    char mode[128] = "";
    zintu_GetValueFromDBInfo("Device.X_LANTIQ_COM_NwHardware.WANConnection", "UciSection", interface, "ConnMode",
                             nullptr, mode);
    return kindByPrefix(mode, kModes, CALTOFAL_WAN_OTHER);
}

} // namespace

int32_t ZintuGet_MultiWanInfo(ZintuMultiWanInfo *info) {
    Message message;
    const int code = getObject(message, "Device.X_LANTIQ_COM_Multiwan.");
    if (code != 0) {
        return traceFailure(code, "faltocal_send_main is Failure\n", 1875);
    }
    const char *held[kHeldCount] = {};
    for (ObjectNode &object : objects(*message)) {
        takeHeld(object, held);
    }
    if (!held[kEnabled]) {
        info->nEnabled = -1;
        return 0;
    }
    info->nEnabled = atob(held[kEnabled]);
    info->nFailOver = held[kTypeName] && beginsWith(held[kTypeName], "FailOver") ? 1 : 0;
    if (held[kFirstWan]) {
        info->nWan1Type = kindOfInterface(held[kFirstWan]);
        copyText(info->sWan1Interface, held[kFirstWan]);
    }
    if (held[kSecondWan]) {
        info->nWan2Type = kindOfInterface(held[kSecondWan]);
        copyText(info->sWan2Interface, held[kSecondWan]);
    }
    return 0;
}
