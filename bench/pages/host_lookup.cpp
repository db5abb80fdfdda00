// SPDX-License-Identifier: MIT
// Finding a device by its MAC address: the last of the host table.
#include "by_hand.h"
#include "page.h"

#include <cstdio>

using namespace by_hand;

namespace {

constexpr char kHost[] = R"(
    Device.Hosts.Host.{host}
        Alias = cpe-Host-{host}
        PhysAddress = {mac}
        IPAddress = 192.168.{net}.{address}
        AddressSource = DHCP
        DHCPClient = Device.DHCPv4.Server.Pool.1.Client.{host}.
        LeaseTimeRemaining = 61234
        AssociatedDevice = Device.WiFi.AccessPoint.9.AssociatedDevice.{host}.
        Layer1Interface = Device.WiFi.SSID.9.
        Layer3Interface = Device.IP.Interface.1.
        InterfaceType = Wi-Fi
        VendorClassID = MSFT 5.0
        ClientID = 01%1$06d
        UserClassID =
        HostName = device-{host}
        Active = true
        ActiveLastChange = 2026-11-15T08:12:05Z
        IPv4AddressNumberOfEntries = 1
        IPv6AddressNumberOfEntries = 1
        ...
    Device.Hosts.Host.{host}.IPv4Address.1
        IPAddress = 192.168.{net}.{address}
    Device.Hosts.Host.{host}.IPv6Address.1
        IPAddress = 2001:db8:15:1::{host}
)";

std::string macAddress(int host) {
    char text[18];
    snprintf(text, sizeof(text), "02:00:5E:10:%02X:%02X", static_cast<unsigned>(host >> 8) & 0xFF,
             static_cast<unsigned>(host) & 0xFF);
    return text;
}

// A text with each placeholder replaced by its value.
std::string filled(std::string text, const std::vector<std::pair<std::string, std::string>> &values) {
    for (const auto &[placeholder, value] : values) {
        for (size_t at = text.find(placeholder); at != std::string::npos; at = text.find(placeholder, at)) {
            text.replace(at, placeholder.size(), value);
        }
    }
    return text;
}

std::string hosts(int count) {
    std::string text = "get Device.Hosts.\nDevice.Hosts\nHostNumberOfEntries = " + std::to_string(count) +
                       "\nAccessControlNumberOfEntries = 0\n";
    for (int i = 1; i <= count; ++i) {
        text += filled(kHost, {{"{host}", std::to_string(i)},
                               {"{mac}", macAddress(i)},
                               {"{net}", std::to_string(i / 250)},
                               {"{address}", std::to_string(i % 250 + 1)}});
    }
    return text;
}

struct Record {
    int instance;
};

template <int Hosts>
char *wanted() {
    static std::string mac = macAddress(Hosts);
    return mac.data();
}

template <int Hosts>
int libraryPage(Record *record) {
    record->instance = GetDeviceID(wanted<Hosts>());
    return record->instance;
}

// The instance number of a host with that address, else 0. A host's own name has a number and nothing behind it; of
// what lies below hosts, addresses do not count.
int instanceOf(const ObjectNode &host, const char *identifier) {
    constexpr size_t kPrefix = sizeof("Device.Hosts.Host.") - 1;
    const char *end = host.name + kPrefix;
    while (*end >= '0' && *end <= '9') {
        ++end;
    }
    if (!begins(host.name, "Device.Hosts.Host.") || (*end && strstr(end, "Address"))) {
        return 0;
    }
    for (const ParamNode *param = caltofal_nextParam(&host, nullptr); param; param = caltofal_nextParam(&host, param)) {
        if (is(param->name, "PhysAddress")) {
            return strcasecmp(param->value, identifier) == 0 ? number(host.name + kPrefix) : 0;
        }
    }
    return 0;
}

bool saysEmpty(const ObjectNode &table) {
    bool empty = false;
    eachParam(table, [&](const char *name, const char *value) {
        empty = empty || (is(name, "HostNumberOfEntries") && number(value) == 0);
    });
    return empty;
}

int search(const MsgHeader &message, const char *identifier) {
    const ObjectNode *object = caltofal_nextObject(&message, nullptr);
    if (object && !begins(object->name, "Device.Hosts.Host.")) {
        if (saysEmpty(*object)) {
            return 0;
        }
        object = caltofal_nextObject(&message, object);
    }
    int instance = 0;
    for (; object && instance == 0; object = caltofal_nextObject(&message, object)) {
        instance = instanceOf(*object, identifier);
    }
    return instance;
}

template <int Hosts>
int floorPage(Record *record) {
    const char *identifier = wanted<Hosts>();
    if (strlen(identifier) != 17 || !strchr(identifier, ':')) {
        return 0;
    }
    MsgHeader message;
    if (get(message, "Device.Hosts.", CALTOFAL_LIST_GET, CALTOFAL_OWNER_HOST) == 0) {
        record->instance = search(message, identifier);
    }
    release(message);
    return record->instance;
}

template <int Hosts>
bench::Page hostLookup() {
    return bench::limited(
        bench::page<libraryPage<Hosts>, floorPage<Hosts>>("host-lookup-" + std::to_string(Hosts), hosts(Hosts),
                                                          Hosts == 50 ? bench::Growth::Params : bench::Growth::None),
        1.046, 1.98);
}

const bench::AddPage kFew(hostLookup<50>());
const bench::AddPage kMany(hostLookup<1000>());

} // namespace
