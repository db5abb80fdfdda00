// SPDX-License-Identifier: MIT
// The IPv4 DNS servers of a WAN interface.
#include "frame/lookup.h"
#include "frame/range.h"
#include "frame/text.h"
#include "frame/trace.h"
#include "network/path.h"
#include "network/request.h"

#include <cstring>

using namespace frame;
using namespace network;

namespace {

constexpr size_t kAddressSize = 16;
constexpr char kServerTable[] = "Device.DNS.Client.Server.";

// Lists of IPv6 servers are skipped.
bool isIpv4Text(const char *text) {
    return *text && !strchr(text, ':');
}

// The server list that an enabled DHCPv4 client of the interface received, or nullptr.
const char *receivedServers(ObjectNode &client, const InterfacePath &interface) {
    enum : uint8_t { kEnable, kStatus, kInterface, kServers, kCount };
    constexpr const char *kNames[kCount] = {"Enable", "Status", "Interface", "DNSServers"};
    const char *values[kCount];
    findOrTrace(client, kNames, values);
    const bool taken = values[kEnable] && values[kStatus] && values[kInterface] && values[kServers] &&
                       isOn(values[kEnable]) && beginsWithAnyCase(values[kStatus], "Enabled") &&
                       interface.is(values[kInterface]) && isIpv4Text(values[kServers]);
    return taken ? values[kServers] : nullptr;
}

// Everything after the first comma goes to the second buffer.
void splitServers(const char *list, char *dns1, char *dns2) {
    const char *first = list + strspn(list, ",");
    const char *comma = strchr(first, ',');
    copyText(dns1, kAddressSize, list, comma ? static_cast<size_t>(comma - list) : kAddressSize);
    const char *rest = comma ? comma + 1 : "";
    copyText(dns2, kAddressSize, *first ? rest : "0.0.0.0");
}

// Writes the first server that is added to `dns1`, the second to `dns2`. Add no more once full().
class ServerPair {
  public:
    ServerPair(char *dns1, char *dns2) : buffers_{dns1, dns2} {}

    void add(const char *server) { copyText(buffers_[count_++], kAddressSize, server); }
    [[nodiscard]] bool full() const { return count_ == 2; }
    [[nodiscard]] bool empty() const { return count_ == 0; }

  private:
    char *buffers_[2];
    int count_ = 0;
};

// An enabled server of the interface, or nullptr. Its status does not count.
const char *enabledServer(ObjectNode &server, const InterfacePath &interface) {
    enum : uint8_t { kEnable, kStatus, kInterface, kAddress, kCount };
    constexpr const char *kNames[kCount] = {"Enable", "Status", "Interface", "DNSServer"};
    const char *values[kCount];
    findOrTrace(server, kNames, values);
    const bool counts = values[kEnable] && values[kStatus] && values[kInterface] && values[kAddress] &&
                        isOn(values[kEnable]) && interface.is(values[kInterface]) && isIpv4Text(values[kAddress]);
    return counts ? values[kAddress] : nullptr;
}

// A static server of the interface, enabled or not, or nullptr.
const char *staticServer(ObjectNode &server, const InterfacePath &interface) {
    enum : uint8_t { kInterface, kAddress, kType, kCount };
    constexpr const char *kNames[kCount] = {"Interface", "DNSServer", "Type"};
    const char *values[kCount];
    findOrTrace(server, kNames, values);
    const bool counts = values[kInterface] && values[kAddress] && values[kType] &&
                        beginsWithAnyCase(values[kType], "Static") && interface.is(values[kInterface]) &&
                        isIpv4Text(values[kAddress]);
    return counts ? values[kAddress] : nullptr;
}

using Selection = const char *(*)(ObjectNode &, const InterfacePath &);

// Takes the first two servers of an answer that a selection finds.
void takeServers(Message &message, const InterfacePath &interface, Selection select, ServerPair &servers) {
    for (ObjectNode &object : objects(*message)) {
        if (const char *server = select(object, interface)) {
            servers.add(server);
            if (servers.full()) {
                return;
            }
        }
    }
}

// Whether a DHCPv4 client of the interface gave servers.
bool takeReceivedServers(const InterfacePath &interface, char *dns1, char *dns2) {
    Message message;
    if (getObjectForCode(message, "Device.DHCPv4.Client.") != 0) {
        return false;
    }
    for (ObjectNode &client : objects(*message)) {
        if (const char *list = receivedServers(client, interface)) {
            splitServers(list, dns1, dns2);
            return true;
        }
    }
    return false;
}

} // namespace

int32_t ZintuGet_WanDns(const char *ipInterface, char *dns1, char *dns2) {
    if (!ipInterface || !*ipInterface || !dns1 || !dns2) {
        return -1;
    }
    const InterfacePath interface(ipInterface);
    if (takeReceivedServers(interface, dns1, dns2)) {
        return 0;
    }
    Message message;
    const int code = getObjectForCode(message, kServerTable);
    if (code == CALTOFAL_ABSENT_OBJECT) {
        return 0;
    }
    if (code != 0) {
        return traceFailure(code, "faltocal_SendMultiObj is Failure \n");
    }
    ServerPair servers(dns1, dns2);
    takeServers(message, interface, enabledServer, servers);
    return 0;
}

int32_t ZintuGet_WanStaticDns(const char *ipInterface, int32_t *dnsAuto, char *dns1, char *dns2) {
    if (!ipInterface || !*ipInterface || !dnsAuto || !dns1 || !dns2) {
        return -1;
    }
    const InterfacePath interface(ipInterface);
    Message message;
    const int code = getObjectForCode(message, kServerTable);
    if (code == CALTOFAL_ABSENT_OBJECT) {
        traceVola(Unit::NetworkGet, "no exist (%s)\n", kServerTable);
        *dnsAuto = 1;
        return 0;
    }
    if (code != 0) {
        return traceFailure(code, "faltocal_SendMultiObj is Failure \n");
    }
    ServerPair servers(dns1, dns2);
    takeServers(message, interface, staticServer, servers);
    *dnsAuto = servers.empty() ? 1 : 0;
    return 0;
}
