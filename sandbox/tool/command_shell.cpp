// SPDX-License-Identifier: MIT
#include "tool/box_entry.h"
#include "tool/command.h"

#include <cstdlib>

namespace sandbox {

void addShell(Command &root, Tool &tool) {
    auto shown = makeOptions<std::vector<std::string>>();
    Command command = root.add("shell", "Open the device's shell");
    addShown(command, *shown);
    command.runs([&tool, shown] {
        setenv("PS1", (tool.location().name + R"(:\w\$ )").c_str(), 1);
        enterBox(tool, *shown, {"/bin/sh"});
    });
}

} // namespace sandbox
