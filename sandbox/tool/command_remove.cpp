// SPDX-License-Identifier: MIT
#include "device/box/places.h"
#include "store/store.h"
#include "tool/command.h"

namespace sandbox {

void addRemove(CLI::App &app, Tool &tool) {
    auto name = makeOptions<std::string>();
    CLI::App *command = app.add_subcommand("remove", "Delete a gateway, its log and what its device keeps");
    command->add_option("NAME", *name, "The gateway")->required();
    command->footer("A demo is made anew on its next use: removing it resets it.");
    command->callback([&tool, name] {
        const Location location = tool.location(*name);
        if (!removeStore(location)) {
            throw Failure("there is no gateway " + location.name + " in " + location.directory, kAbsent);
        }
        box::removeState(location);
        say("removed gateway " + location.name);
    });
}

} // namespace sandbox
