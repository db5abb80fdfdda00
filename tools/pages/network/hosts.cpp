// SPDX-License-Identifier: MIT
// The clients of the LAN: all, or the one that the library finds by an address.
#include "caltofal.h"
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/layer/call.h"
#include "pages/layer/query.h"
#include "pages/network/pages.h"

#include <map>

namespace pages {
namespace {

constexpr const char *kTable = "Device.Hosts.Host";

// "" where the gateway has no such object.
std::string nameOf(const std::string &interface) {
    if (interface.empty()) {
        return {};
    }
    try {
        const std::vector<Object> found = get({{interface, {{"Name"}}}}, Reading::Leaf);
        return found.empty() ? "" : valueOf(found.front(), "Name");
    } catch (const Failure &failure) {
        if (failure.category() == Category::Absent) {
            return {};
        }
        throw;
    }
}

// The interfaces' names, each asked for once.
class InterfaceNames {
  public:
    const std::string &of(const std::string &interface) {
        const auto [place, isNew] = names_.try_emplace(interface);
        if (isNew) {
            place->second = nameOf(interface);
        }
        return place->second;
    }

  private:
    std::map<std::string, std::string> names_;
};

std::vector<Object> objectsBelow(const std::string &path) {
    static const std::vector<Parameter> kWanted = {{"HostName"},      {"IPAddress"},       {"PhysAddress"},
                                                   {"InterfaceType"}, {"Layer1Interface"}, {"Active"}};
    std::vector<Object> answer = get({{path, kWanted}}, Reading::Whole);
    // The addresses of an instance are objects below it.
    std::erase_if(answer, [](const Object &object) {
        return withoutDot(object.name).find('.', std::string_view(kTable).size() + 1) != std::string::npos;
    });
    return answer;
}

Value known(const std::string &text) {
    return text.empty() ? Value() : Value(text);
}

// Null where the instance has a name: an alias without its brackets.
Value numberOf(const Object &host) {
    const int number = instanceOf(host.name);
    return number == 0 ? Value() : Value(number);
}

Page pageOf(const Object &host, InterfaceNames &names) {
    return pages::pageOf({
        {"number", "Number", numberOf(host)},
        {"object", "Object", withoutDot(host.name)},
        {"name", "Name", valueOf(host, "HostName")},
        {"address", "Address", valueOf(host, "IPAddress")},
        {"mac", "MAC address", valueOf(host, "PhysAddress")},
        {"interface", "Interface", valueOf(host, "Layer1Interface")},
        {"interface_name", "Interface's name", known(names.of(valueOf(host, "Layer1Interface")))},
        {"type", "Type", valueOf(host, "InterfaceType")},
        {"active", "Active", flagOf(valueOf(host, "Active"))},
    });
}

Row rowOf(const Value &host) {
    Row row = pages::rowOf(host, {"number", "name", "address", "mac", "interface_name", "type", "active"});
    if (host["interface_name"].isNull()) {
        row[4] = cellOf(host["interface"]);
    }
    Cell &state = row.back();
    if (host["active"].isFlag()) {
        state = {host["active"].flag() ? "active" : "inactive", host["active"].flag() ? Style::Good : Style::Plain};
    }
    return row;
}

Object hostThatLibraryFinds(const std::string &mac, const std::string &address) {
    std::string asked = mac; // the library takes a text that could be written
    const auto call = [&] {
        const int instance = GetDeviceID(asked.data());
        return instance > 0 ? instance : -1;
    };
    const int instance = ask(call, {std::string(kTable) + ": none has the address " + address});
    const std::vector<Object> found = objectsBelow(std::string(kTable) + "." + std::to_string(instance));
    if (found.empty()) {
        throw Failure(Category::Absent, "host " + std::to_string(instance) + " has just gone");
    }
    return found.front();
}

// The library knows addresses with colons, and instances with numbers. Gateways of other makers have others.
Object hostWithMac(const std::string &mac, const std::string &address) {
    try {
        return hostThatLibraryFinds(mac, address);
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent || failure.code() != 0) {
            throw;
        }
        for (const Object &host : objectsBelow(kTable)) {
            if (isSameMac(valueOf(host, "PhysAddress"), mac)) {
                return host;
            }
        }
        throw;
    }
}

std::string macOf(const std::string &address) {
    try {
        return checkedMac(address);
    } catch (const Usage &) {
        throw Usage("\"" + address + "\" is neither a MAC address nor an IPv4 address");
    }
}

} // namespace

Report hosts() {
    Report result{.json = Value::object({{"hosts", Value::list()}})};
    result.table.headings = {"HOST", "NAME", "ADDRESS", "MAC", "IFACE", "TYPE", "STATE"};
    InterfaceNames names;
    for (const Object &object : objectsBelow(kTable)) {
        const Value host = Report(pageOf(object, names)).json;
        result.table.rows.push_back(rowOf(host));
        result.json["hosts"].push(host);
    }
    if (result.table.rows.empty()) {
        result.notes.emplace_back("no hosts are known");
    }
    return result;
}

Page host(const std::string &address) {
    const bool ipv4 = zintu_isValidIPv4Address(address.c_str()) == 0;
    const Object found = ipv4 ? hostThatLibraryFinds(address, address) : hostWithMac(macOf(address), address);
    InterfaceNames names;
    return pageOf(found, names);
}

} // namespace pages
