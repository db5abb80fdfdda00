// SPDX-License-Identifier: MIT
#include "device/box/places.h"
#include "exchange/gateway.h"
#include "store/store.h"
#include "tool/command.h"

namespace sandbox {

void addRemove(Command &root, Tool &tool) {
    auto name = makeOptions<std::string>();
    Command command = root.add("remove", "Delete a gateway, its log and what its device keeps");
    command.word("NAME", *name, "The gateway", Need::Required);
    command.footer("A demo is made anew on its next use: removing it resets it.");
    command.runs([&tool, name] {
        const Location location = tool.location(*name);
        if (!removeStore(location)) {
            throw Failure(noGateway(location, nearGateways(location.name, location.directory)).what(), kAbsent);
        }
        box::removeState(location);
        say("removed gateway " + location.name);
    });
}

} // namespace sandbox
