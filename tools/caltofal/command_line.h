// SPDX-License-Identifier: MIT
// The command line as a whole: the commands' arguments and the options that go with all of them.
#pragma once

#include "caltofal/command.h"
#include "caltofal/print.h"

#include <string>
#include <vector>

namespace cli {

struct Options {
    Form form;
    bool secrets = false; // are shown
    bool trace = false;
    std::string gateway; // "": the environment's, else the sandbox's own choice
    int watch = 0;       // seconds after which the page is shown anew; 0: once
};

struct Task {
    const Command *command = nullptr;
    Show show;
    std::string words = {}; // the noun, and the verb where it has some
};

// What to do; the words are those of typed_words.h. Prints help or version and answers no command where that was asked
// for; throws Usage.
Task parse(const std::vector<std::string> &words, Options &options);

// Runs `act`. A Usage that it throws gets the command's words: what checks an argument does not know whose it is.
void namingCommand(const Task &task, const std::function<void()> &act);

} // namespace cli
