// SPDX-License-Identifier: MIT
#include "pages/network/pages.h"

#include "pages/layer/query.h"
#include "pages/page.h"

namespace pages {
namespace {

Value jsonOf(const Object &host) {
    Value json = Value::object({{"number", instanceOf(host.name)}});
    json["name"] = valueOf(host, "HostName");
    json["address"] = valueOf(host, "IPAddress");
    json["mac"] = valueOf(host, "PhysAddress");
    json["interface"] = withoutDot(valueOf(host, "Layer1Interface"));
    json["type"] = valueOf(host, "InterfaceType");
    json["active"] = valueOf(host, "Active") == "true";
    return json;
}

} // namespace

Report hosts() {
    Report result{.json = Value::object({{"hosts", Value::list()}})};
    result.table.headings = {"NAME", "ADDRESS", "MAC", "INTERFACE", "TYPE", "ACTIVE"};
    const std::vector<Parameter> wanted = {{"HostName"},        {"IPAddress"},     {"PhysAddress"},
                                           {"Layer1Interface"}, {"InterfaceType"}, {"Active"}};
    for (const Object &host : get({{"Device.Hosts.Host", wanted}}, Reading::Leaf)) {
        if (instanceOf(host.name) == 0) {
            continue; // the table itself
        }
        const Value json = jsonOf(host);
        result.table.rows.push_back(rowOf(json, {"name", "address", "mac", "interface", "type", "active"}));
        result.json["hosts"].push(json);
    }
    return result;
}

} // namespace pages
