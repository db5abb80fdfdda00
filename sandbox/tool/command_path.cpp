// SPDX-License-Identifier: MIT
#include "tool/command.h"

#include <iostream>

namespace sandbox {

void addPath(CLI::App &app, Tool &tool) {
    auto name = makeOptions<std::string>();
    CLI::App *command = app.add_subcommand("path", "Print the file that a gateway is kept in");
    command->add_option("NAME", *name, "The gateway");
    command->callback([&tool, name] { std::cout << tool.location(*name).storeFile() << '\n'; });
}

} // namespace sandbox
