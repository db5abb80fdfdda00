// SPDX-License-Identifier: MIT
//
// The commands of caltofal-sandbox and what they share.
#pragma once

#include "store/database.h"
#include "store/location.h"
#include "tool/command_line.h"

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
    std::vector<std::string> words; // after "--": the command of `run`
    int exitCode = kDone;

    // The gateway of that name, or of -g, or the environment's choice.
    Location location(const std::string &name = {}) const;
    // Opens it; a demo that does not exist yet is made.
    std::unique_ptr<Database> open(const std::string &name = {}) const;
};

// Each declares a command, whose work throws what goes wrong.
void addBoot(Command &root, Tool &tool);
void addConsole(Command &root, Tool &tool);
void addDiff(Command &root, Tool &tool);
void addExport(Command &root, Tool &tool);
void addFault(Command &root, Tool &tool);
void addImport(Command &root, Tool &tool);
void addList(Command &root, Tool &tool);
void addNew(Command &root, Tool &tool);
void addPath(Command &root, Tool &tool);
void addRemove(Command &root, Tool &tool);
void addRun(Command &root, Tool &tool);
void addShell(Command &root, Tool &tool);

// All of them, in the order in which help lists them.
void addCommands(Command &root, Tool &tool);

// Whether there is such a gateway; demos that are not made yet count.
bool isGateway(const Location &location);

// The key of an object path that a command was given. Throws a Failure.
std::string keyOfArgument(const std::string &path);

// Options that live as long as their command's work.
template <class Options>
std::shared_ptr<Options> makeOptions() {
    return std::make_shared<Options>();
}

// What --show-secrets does, where a command has it.
inline constexpr const char *kShowSecrets = "Show pass phrases, passwords and keys";

// A word on standard error.
void say(const std::string &words);

// "1 entry", "2 entries".
std::string counted(size_t number, const std::string &one, const std::string &several);

} // namespace sandbox
