// SPDX-License-Identifier: MIT
// The nouns' arguments as the parser takes them.
#include "pages/objects/words.h"

#include <CLI/CLI.hpp>

namespace cli {

std::string notEmpty(const std::string &value) {
    return value.empty() ? "is empty" : "";
}

void addArgument(CLI::App &command, const char *name, std::string &target, const char *what) {
    command.add_option(name, target, what)->required()->option_text(" ");
}

void addOptionalArgument(CLI::App &command, const char *name, std::string &target, const char *what) {
    command.add_option(name, target, what)->option_text(" ")->check(notEmpty);
}

std::function<bool()> addCountedArgument(CLI::App &command, const char *name, std::string &target, const char *what) {
    const CLI::Option *option = command.add_option(name, target, what)->option_text(" ");
    return [option] { return option->count() > 0; };
}

void addArguments(CLI::App &command, const char *name, std::vector<std::string> &target, const char *type,
                  const char *what) {
    command.add_option(name, target, what)->required()->option_text(type);
}

void addFlag(CLI::App &command, const char *name, bool &target, const char *what) {
    command.add_flag(name, target, what);
}

void addOption(CLI::App &command, const char *name, std::string &target, const char *type, const char *what) {
    command.add_option(name, target, what)->type_name(type)->check(notEmpty);
}

void addOption(CLI::App &command, const char *name, std::vector<std::string> &target, const char *type,
               const char *what) {
    command.add_option(name, target, what)->type_name(type)->allow_extra_args(false);
}

} // namespace cli
