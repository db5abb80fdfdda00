// SPDX-License-Identifier: MIT
#include "caltofal/command.h"

#include <CLI/CLI.hpp>
#include <sstream>

namespace cli {
namespace {

std::string examplesOf(const std::string &words, const char *examples) {
    std::string result = "Examples:";
    std::istringstream lines(examples);
    std::string line;
    do {
        line.clear();
        std::getline(lines, line);
        result += "\n  " + words + (line.empty() ? "" : " ") + line;
    } while (!lines.eof() && !lines.fail());
    return result;
}

} // namespace

void addCommand(CLI::App &parent, const std::string &words, const Noun &noun, const std::shared_ptr<Run> &chosen) {
    CLI::App *command = parent.add_subcommand(noun.name, noun.summary);
    command->fallthrough();
    command->footer(examplesOf(words + " " + noun.name, noun.examples));
    const Run run = noun.define(*command);
    command->callback([chosen, run] { *chosen = run; });
}

Run defineVerbs(CLI::App &command, const std::string &words, std::span<const Noun *const> verbs) {
    const auto chosen = std::make_shared<Run>();
    command.require_subcommand(1);
    for (const Noun *verb : verbs) {
        addCommand(command, words, *verb, chosen);
    }
    return [chosen] { return (*chosen)(); };
}

} // namespace cli
