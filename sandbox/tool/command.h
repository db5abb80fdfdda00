// SPDX-License-Identifier: MIT
//
// The commands of caltofal-sandbox and what they share.
#pragma once

#include "store/database.h"
#include "store/location.h"

#include <CLI/CLI.hpp>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace sandbox {

// Exit codes.
enum ExitCode { kDone = 0, kFailed = 1, kUsage = 2, kAbsent = 10 };

// Ends a command with a line on standard error.
class Failure : public std::runtime_error {
  public:
    explicit Failure(const std::string &message, ExitCode code = kFailed) : std::runtime_error(message), code_(code) {}
    ExitCode code() const { return code_; }

  private:
    ExitCode code_;
};

// One run of the tool.
struct Tool {
    std::string gateway;            // from -g; "" the environment's choice
    std::vector<std::string> words; // behind "--": the command of `run`
    int exitCode = kDone;

    // The gateway of that name, or of -g, or the environment's choice.
    Location location(const std::string &name = {}) const;
    // Opens it; a demo that does not exist yet is made.
    std::unique_ptr<Database> open(const std::string &name = {}) const;
};

// A row of the command table: adds a subcommand, whose callback does the work and throws what goes wrong.
struct Command {
    void (*add)(CLI::App &app, Tool &tool);
};

void addBoot(CLI::App &app, Tool &tool);
void addConsole(CLI::App &app, Tool &tool);
void addDiff(CLI::App &app, Tool &tool);
void addExport(CLI::App &app, Tool &tool);
void addFault(CLI::App &app, Tool &tool);
void addImport(CLI::App &app, Tool &tool);
void addList(CLI::App &app, Tool &tool);
void addNew(CLI::App &app, Tool &tool);
void addPath(CLI::App &app, Tool &tool);
void addRemove(CLI::App &app, Tool &tool);
void addRun(CLI::App &app, Tool &tool);
void addShell(CLI::App &app, Tool &tool);

// The key of an object path that a command was given. Throws a Failure.
std::string keyOfArgument(const std::string &path);

// Takes the words behind "--" off the arguments of `run`, exactly as they are: what is left is for the parser.
void takeWords(int &argc, char **argv, Tool &tool);

// Options that live as long as their command's callback.
template <typename Options>
std::shared_ptr<Options> makeOptions() {
    return std::make_shared<Options>();
}

// A word on standard error.
void say(const std::string &words);

} // namespace sandbox
