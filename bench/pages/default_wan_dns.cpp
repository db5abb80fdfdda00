// SPDX-License-Identifier: MIT
// The DNS servers of the default WAN page by hand.
#include "default_wan.h"

#include <algorithm>
#include <arpa/inet.h>

using namespace by_hand;

namespace default_wan {
namespace {

bool isInterface(const Call &call, const char *reference) {
    const size_t length = strlen(reference);
    const size_t dotted = length + (length > 0 && reference[length - 1] != '.' ? 1 : 0);
    return dotted == call.dottedLength && memcmp(reference, call.dotted, length) == 0;
}

bool isIpv4Text(const char *value) {
    return *value && !strchr(value, ':');
}

void readStaticDns(Call &call) {
    ZintuWanInfo *info = call.info;
    MsgHeader message;
    if (get(message, "Device.DNS.Client.Server.", CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST) == 0) {
        int found = 0;
        eachObject(message, [&](const ObjectNode &entry) {
            const char *interface = nullptr;
            const char *server = nullptr;
            const char *type = nullptr;
            eachParam(entry, [&](const char *name, const char *value) {
                if (!interface && is(name, "Interface")) {
                    interface = value;
                } else if (!server && is(name, "DNSServer")) {
                    server = value;
                } else if (!type && is(name, "Type")) {
                    type = value;
                }
            });
            if (found < 2 && interface && server && type && beginsAnyCase(type, "Static") &&
                isInterface(call, interface) && isIpv4Text(server)) {
                copy(found == 0 ? info->sDNS1 : info->sDNS2, server);
                ++found;
            }
        });
        info->bDnsAuto = found == 0 ? 1 : 0;
    }
    release(message);
}

// The second server is all that stands behind the first comma.
void splitServers(ZintuWanInfo *info, const char *list) {
    const char *first = list + strspn(list, ",");
    const size_t length = strcspn(first, ",");
    if (length == 0) {
        copy(info->sDNS1, list);
        copy(info->sDNS2, "0.0.0.0");
        return;
    }
    const size_t kept = std::min(static_cast<size_t>(first - list) + length, sizeof(info->sDNS1) - 1);
    memcpy(info->sDNS1, list, kept);
    info->sDNS1[kept] = '\0';
    copy(info->sDNS2, first[length] ? first + length + 1 : "");
}

// Whether a DHCP client of the interface gave servers.
bool readReceivedDns(Call &call) {
    MsgHeader message;
    bool taken = false;
    if (get(message, "Device.DHCPv4.Client.", CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST) == 0) {
        for (ObjectNode *client = caltofal_nextObject(&message, nullptr); client && !taken;
             client = caltofal_nextObject(&message, client)) {
            const char *enable = nullptr;
            const char *status = nullptr;
            const char *interface = nullptr;
            const char *servers = nullptr;
            eachParam(*client, [&](const char *name, const char *value) {
                if (!enable && is(name, "Enable")) {
                    enable = value;
                } else if (!status && is(name, "Status")) {
                    status = value;
                } else if (!interface && is(name, "Interface")) {
                    interface = value;
                } else if (!servers && is(name, "DNSServers")) {
                    servers = value;
                }
            });
            taken = enable && status && interface && servers && isOn(enable) && beginsAnyCase(status, "Enabled") &&
                    isInterface(call, interface) && isIpv4Text(servers);
            if (taken) {
                splitServers(call.info, servers);
            }
        }
    }
    release(message);
    return taken;
}

// The table's enabled servers, where no client has any.
void readServerTable(Call &call) {
    ZintuWanInfo *info = call.info;
    MsgHeader message;
    if (get(message, "Device.DNS.Client.Server.", CALTOFAL_LIST_LEAF, CALTOFAL_OWNER_HOST) == 0) {
        int found = 0;
        eachObject(message, [&](const ObjectNode &entry) {
            const char *enable = nullptr;
            const char *status = nullptr;
            const char *interface = nullptr;
            const char *server = nullptr;
            eachParam(entry, [&](const char *name, const char *value) {
                if (!enable && is(name, "Enable")) {
                    enable = value;
                } else if (!status && is(name, "Status")) {
                    status = value;
                } else if (!interface && is(name, "Interface")) {
                    interface = value;
                } else if (!server && is(name, "DNSServer")) {
                    server = value;
                }
            });
            if (found < 2 && enable && status && interface && server && isOn(enable) && isInterface(call, interface) &&
                isIpv4Text(server)) {
                copy(found == 0 ? info->sDNS1 : info->sDNS2, server);
                ++found;
            }
        });
    }
    release(message);
}

// Whether a field contains a word, which mostly stands at its start.
template <size_t Size>
bool contains(const char (&field)[16], const char (&word)[Size]) {
    return begins(field, word) || memmem(field, sizeof(field), word, Size - 1);
}

bool isInvalid(const char (&server)[16]) {
    char text[17];
    memcpy(text, server, sizeof(server));
    text[16] = '\0';
    in_addr address;
    return inet_pton(AF_INET, text, &address) != 1;
}

} // namespace

void decideDns(Call &call) {
    ZintuWanInfo *info = call.info;
    info->bDnsAuto = 1;
    if (contains(info->sWanIpType, "dynamic")) {
        readStaticDns(call);
    } else if (contains(info->sWanIpType, "static") ||
               (contains(info->sWanIpType, "pppoe") && contains(info->sIpv4Mode, "static"))) {
        info->bDnsAuto = 0;
    }
    const bool bothUnset = begins(info->sDNS1, "0.0.0.0") && begins(info->sDNS2, "0.0.0.0");
    if ((bothUnset || (isInvalid(info->sDNS1) && isInvalid(info->sDNS2))) && !readReceivedDns(call)) {
        readServerTable(call);
    }
}

} // namespace default_wan
