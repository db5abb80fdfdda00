// SPDX-License-Identifier: MIT
// Commands of the command line: nouns, and the verbs below a noun that has several.
#pragma once

#include "caltofal/noun.h"

#include <memory>
#include <string>

namespace cli {

// Adds a command below `parent`, whose words so far are `words`. When it is chosen, `*chosen` becomes what it runs.
void addCommand(CLI::App &parent, const std::string &words, const Noun &noun, const std::shared_ptr<Run> &chosen);

// Makes `command`, with the words `words`, a noun of which one of `verbs` must be given.
Run defineVerbs(CLI::App &command, const std::string &words, std::span<const Noun *const> verbs);

} // namespace cli
