// SPDX-License-Identifier: MIT
#include "store/boot.h"

#include "tool/changes.h"
#include "tool/command.h"

#include <iostream>

namespace sandbox {

void addBoot(CLI::App &app, Tool &tool) {
    auto name = makeOptions<std::string>();
    CLI::App *command = app.add_subcommand("boot", "Make the running values follow the stored ones");
    command->add_option("NAME", *name, "The gateway");
    command->footer("Prints what changed, as diff does.");
    command->callback([&tool, name] {
        const std::unique_ptr<Database> database = tool.open(*name);
        Transaction transaction(*database, Transaction::Kind::Write);
        const std::vector<Change> changes = pendingChanges(*database);
        boot(*database);
        transaction.commit();
        printChanges(changes, std::cout);
    });
}

} // namespace sandbox
