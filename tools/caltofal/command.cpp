// SPDX-License-Identifier: MIT
#include "caltofal/command.h"

#include "caltofal/commands/commands.h"

namespace cli {

const std::vector<std::string> &Arguments::words(std::string_view name) const {
    static const std::vector<std::string> kNone;
    const auto found = words_.find(name);
    return found == words_.end() ? kNone : found->second;
}

const std::string &Arguments::word(std::string_view name) const {
    static const std::string kEmpty;
    const std::vector<std::string> &all = words(name);
    return all.empty() ? kEmpty : all.front();
}

void Arguments::set(std::string_view name, std::vector<std::string> words) {
    words_.emplace(name, std::move(words));
}

std::vector<std::span<const Command>> commands() {
    return {networkCommands(), objectCommands(), captureCommands(), wifiCommands(), meshCommands()};
}

} // namespace cli
