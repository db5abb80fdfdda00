// SPDX-License-Identifier: MIT
#include "store/boot.h"
#include "tool/command.h"
#include "tool/differences.h"

#include <iostream>

namespace sandbox {

void addBoot(Command &root, Tool &tool) {
    auto name = makeOptions<std::string>();
    Command command = root.add("boot", "Make the running values follow the stored ones");
    command.word("NAME", *name, "The gateway");
    command.footer("Prints what changed, as diff does.");
    command.runs([&tool, name] {
        const std::unique_ptr<Database> database = tool.open(*name);
        Transaction transaction(*database, Transaction::Kind::Write);
        const std::vector<Difference> differences = pendingDifferences(*database);
        boot(*database);
        transaction.commit();
        printDifferences(differences, std::cout);
    });
}

} // namespace sandbox
