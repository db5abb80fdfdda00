// SPDX-License-Identifier: MIT
#include "pages/failure.h"
#include "pages/layer/query.h"
#include "pages/mesh/pages.h"
#include "pages/mesh/state.h"
#include "pages/page.h"

namespace pages::mesh {
namespace {

// A gateway may have no table of satellites.
std::vector<Object> satellites() {
    try {
        return get(
            {{"Device.WiFi.X_ZINTU_RoamingMesh.Satellite", {{"Name"}, {"PhysAddress"}, {"IPAddress"}, {"Active"}}}},
            Reading::Whole);
    } catch (const Failure &failure) {
        if (failure.category() == Category::Absent) {
            return {};
        }
        throw;
    }
}

Row rowOf(const Value &satellite) {
    const bool active = satellite["active"] != false;
    return {{satellite["name"].text()},
            {satellite["mac"].text() + "  " + satellite["ip"].text() + (active ? "" : "  not connected"),
             active ? Style::Plain : Style::Bad}};
}

} // namespace

Report status() {
    const State now = state();
    Report result = pageOf({
        {"enabled", "Enabled", now.enabled},
        {"master", "Master", now.master},
        {"connected", "Connected satellites", now.satellites},
    });
    result.json["satellites"] = Value::list();
    int number = 0;
    for (const Object &object : satellites()) {
        const Value satellite = Value::object({{"name", valueOf(object, "Name")},
                                               {"mac", valueOf(object, "PhysAddress")},
                                               {"ip", valueOf(object, "IPAddress")},
                                               {"active", flagOf(valueOf(object, "Active"))}});
        result.table.rows.push_back(rowOf(satellite));
        addFacts(result.table, "satellite." + std::to_string(++number), satellite);
        result.json["satellites"].push(satellite);
    }
    return result;
}

} // namespace pages::mesh
