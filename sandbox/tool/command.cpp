// SPDX-License-Identifier: MIT
#include "command.h"

#include "path.h"
#include "store.h"

#include <iostream>

namespace sandbox {

Location Tool::location(const std::string &name) const {
    const std::string &chosen = name.empty() ? gateway : name;
    return chosen.empty() ? Location::current() : Location::named(chosen);
}

std::unique_ptr<Database> Tool::open(const std::string &name) const {
    return openStore(location(name));
}

std::string keyOfArgument(const std::string &path) {
    const std::optional<std::string> key = keyOf(path);
    if (!key) {
        throw Failure(path + " is no object path", kUsage);
    }
    return *key;
}

void say(const std::string &words) {
    std::cerr << words << '\n';
}

} // namespace sandbox
