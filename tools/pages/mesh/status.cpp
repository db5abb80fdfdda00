// SPDX-License-Identifier: MIT
#include "pages/mesh/pages.h"

#include "caltofal.h"
#include "caltofal/device.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/interface.h"

namespace cli::mesh {
namespace {

constexpr int kMasterMode = 4; // bit of the operation mode
constexpr size_t kLineSize = 128;

int32_t connectedSatellites() {
    char line[kLineSize] = "";
    ShellOutput output;
    ZINTU_meshgrove_get_from_shell("gddbc -i -g /runtime/singlesignoninfo/livingslave/ishasrptslave", line);
    const std::string complaint = output.end();
    if (line[0] == '\0' && !complaint.empty()) {
        failOfShell("the runtime database does not tell the satellites", complaint);
    }
    return ConvInt(line);
}

// A gateway may have no table of satellites.
std::vector<Object> satellites() {
    try {
        return get({{"Device.WiFi.X_ZINTU_RoamingMesh.Satellite",
                     {{"Name", {}}, {"PhysAddress", {}}, {"IPAddress", {}}, {"Active", {}}}}},
                   Reading::Whole);
    } catch (const Failure &failure) {
        if (failure.exit() == Exit::Absent) {
            return {};
        }
        throw;
    }
}

Report run() {
    needDevice();
    const State now = state();
    Report result = report(Page{{{"",
                                  "",
                                  {
                                      {"enabled", "Enabled", now.enabled, {}},
                                      {"master", "Master", now.master, {}},
                                      {"connected", "Connected satellites", now.satellites, {}},
                                  }}},
                                {}});
    result.json["satellites"] = Json::array();
    for (const Object &object : satellites()) {
        const bool active = valueOf(object, "Active") == "true";
        Json satellite = Json::object();
        put(satellite, "name", valueOf(object, "Name"));
        put(satellite, "mac", valueOf(object, "PhysAddress"));
        put(satellite, "ip", valueOf(object, "IPAddress"));
        satellite["active"] = active;
        const Cell address = {valueOf(object, "PhysAddress") + "  " + valueOf(object, "IPAddress") +
                                  (active ? "" : "  not connected"),
                              active ? Style::Plain : Style::Bad};
        result.table.rows.push_back({{valueOf(object, "Name")}, address});
        result.json["satellites"].push_back(satellite);
    }
    return result;
}

Run define(CLI::App & /*command*/) {
    return run;
}

} // namespace

State state() {
    State now;
    now.enabled = askEvery(ZINTU_meshgrove_check_is_enabled) == 1;
    now.master = (ask(ZintuGet_OperMode, {kNoMode}) & kMasterMode) != 0;
    now.satellites = connectedSatellites();
    return now;
}

const Noun kStatusVerb = {"status", "Whether the mesh is on, and who belongs to it", "-g mesh", define};

} // namespace cli::mesh
