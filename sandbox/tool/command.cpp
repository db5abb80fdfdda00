// SPDX-License-Identifier: MIT
#include "tool/command.h"

#include "exchange/demo.h"
#include "exchange/gateway.h"
#include "store/store.h"
#include "value/path.h"
#include "value/secret.h"

#include <iostream>

namespace sandbox {

Location Tool::location(const std::string &name) const {
    const std::string &chosen = name.empty() ? gateway : name;
    return chosen.empty() ? Location::current() : Location::named(chosen);
}

std::unique_ptr<Database> Tool::open(const std::string &name) const {
    return openGateway(location(name));
}

bool isGateway(const Location &location) {
    return storeExists(location) || findDemo(location.name);
}

std::string keyOfArgument(const std::string &path) {
    const std::optional<std::string> key = keyOf(path);
    if (!key) {
        throw Failure(shownName(path) + " is not an object path", kUsage);
    }
    return *key;
}

void addCommands(Command &root, Tool &tool) {
    for (auto *add : {addNew, addList, addImport, addExport, addDiff, addBoot, addFault, addPath, addRemove, addRun,
                      addShell, addConsole}) {
        add(root, tool);
    }
}

void say(const std::string &words) {
    std::cerr << words << '\n';
}

std::string counted(size_t number, const std::string &one, const std::string &several) {
    return std::to_string(number) + " " + (number == 1 ? one : several);
}

} // namespace sandbox
