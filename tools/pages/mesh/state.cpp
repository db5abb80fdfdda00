// SPDX-License-Identifier: MIT
#include "pages/mesh/state.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/current.h"
#include "pages/process/shell_output.h"

namespace pages::mesh {
namespace {

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

} // namespace

State state() {
    State now;
    now.enabled = askEvery(ZINTU_meshgrove_check_is_enabled) == 1;
    now.master = (operationMode() & kRouterBit) != 0;
    now.satellites = connectedSatellites();
    return now;
}

} // namespace pages::mesh
