// SPDX-License-Identifier: MIT
#include "store/boot.h"
#include "tool/command.h"
#include "tool/differences.h"

#include <iostream>

namespace sandbox {
namespace {

struct BootOptions {
    std::string name;
    bool secrets = false;
};

} // namespace

void addBoot(Command &root, Tool &tool) {
    auto options = makeOptions<BootOptions>();
    Command command = root.add("boot", "Make the running values follow the stored ones");
    command.word("NAME", options->name, "The gateway");
    command.flag("--show-secrets", options->secrets, kShowSecrets);
    command.footer("Prints what changed, as diff does.");
    command.runs([&tool, options] {
        const std::unique_ptr<Database> database = tool.open(options->name);
        Transaction transaction(*database, Transaction::Kind::Write);
        const std::vector<Difference> differences = pendingDifferences(*database);
        boot(*database);
        transaction.commit();
        printDifferences(differences, options->secrets, std::cout);
    });
}

} // namespace sandbox
