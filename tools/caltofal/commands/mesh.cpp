// SPDX-License-Identifier: MIT
#include "caltofal/commands/commands.h"
#include "caltofal/terminal_wait.h"
#include "pages/checked.h"
#include "pages/mesh/pages.h"

namespace cli {
namespace {

using namespace pages;

Show prepareStatus(const Arguments & /*none*/) {
    return mesh::status;
}

template <bool on>
Show prepareSwitch(const Arguments & /*none*/) {
    return [] { return mesh::enable(on); };
}

Show prepareSync(const Arguments & /*none*/) {
    return [] {
        TerminalWait wait;
        return mesh::sync(wait);
    };
}

Show prepareIp(const Arguments &given) {
    return [mac = checkedMac(given.word("MAC"))] { return mesh::ip(mac); };
}

const Command kMeshVerbs[] = {
    {"status", "Whether the mesh is on, and who belongs to it", "-g mesh", prepareStatus, {}, kDevice},
    {"enable", "Switch the mesh on", "", prepareSwitch<true>, {}, kActs},
    {"disable", "Switch the mesh off", "", prepareSwitch<false>, {}, kActs},
    {"sync", "Have the satellites take over this gateway's settings", "-g mesh", prepareSync, {}, kDevice | kActs},
    {"ip",
     "The IP address of a satellite",
     "02:00:5e:20:00:01 -g mesh",
     prepareIp,
     {{"MAC", Take::Word, "A MAC address"}},
     kDevice},
};

const Command kMeshCommands[] = {
    {"mesh", "The roaming mesh and its satellites", "status -g mesh", nullptr, {}, kPage, kMeshVerbs},
};

} // namespace

std::span<const Command> meshCommands() {
    return kMeshCommands;
}

} // namespace cli
