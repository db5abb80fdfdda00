// SPDX-License-Identifier: MIT
// A command of the command line as data: a noun, or a verb of one.
#pragma once

#include "pages/report.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

// What "any text" is not said of has no "=" in it: a command that reads refuses what was meant for `set`.
enum class Take {
    Word,        // an argument
    Text,        // one of any text
    Optional,    // one that may be left out, but not be empty
    MayBeAny,    // one of any text that may be left out, and may be empty
    Words,       // one or more
    Assignments, // one or more, NAME=VALUE among them
    AnyWords,    // none or more
    Flag,        // an option without a value
    Option,      // with one, any text that is not empty
    Repeatable   // several times, one value each
};

struct Argument {
    const char *name; // "OBJECT" or "--option"
    Take take;
    const char *what;
    const char *type = " "; // behind the name in the help
};

// What was typed, by the arguments' names.
class Arguments {
  public:
    [[nodiscard]] bool given(std::string_view name) const { return words_.contains(name); }
    [[nodiscard]] const std::vector<std::string> &words(std::string_view name) const;
    // "" where it was not given.
    [[nodiscard]] const std::string &word(std::string_view name) const;

    void set(std::string_view name, std::vector<std::string> words);

  private:
    std::map<std::string, std::vector<std::string>, std::less<>> words_;
};

// Asks the gateway; throws pages::Failure.
using Show = std::function<pages::Report()>;

enum Trait : unsigned {
    kPage = 0,
    kDevice = 1, // runs the device's own tools, or reads its files
    kActs = 2    // changes something, or writes a file: nothing to show again and again
};

struct Command {
    const char *name;
    const char *summary;
    const char *examples;                         // argument lists, a line each
    Show (*prepare)(const Arguments &) = nullptr; // checks what was typed; throws pages::Usage
    std::initializer_list<Argument> arguments = {};
    unsigned traits = kPage;             // of Trait
    std::span<const Command> verbs = {}; // instead of `prepare`
};

// The nouns, in the order of the help.
std::vector<std::span<const Command>> commands();

} // namespace cli
