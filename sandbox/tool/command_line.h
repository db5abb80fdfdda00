// SPDX-License-Identifier: MIT
//
// The command line: commands say here what they take. The parser's large header is seen by command_line.cpp alone.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace CLI { // NOLINT(readability-identifier-naming): the parser names it
class App;
}

namespace sandbox {

struct Tool;

enum class Need { Optional, Required };

// A command, or a group of commands. Values are stored where the references point, before the command's work begins;
// what was not given leaves them alone. Values are never empty texts: the parser refuses those.
class Command {
  public:
    explicit Command(CLI::App &app) : app_(&app) {}

    // A command below this one. A group needs one of its commands and does nothing itself.
    Command add(const char *name, const char *meaning);
    Command group(const char *name, const char *meaning);

    // Words in the order of their calls; `name` is the help's word for them.
    Command &word(const char *name, std::string &value, const char *meaning, Need need = Need::Optional);
    Command &words(const char *name, std::vector<std::string> &values, int most, const char *meaning);
    Command &number(const char *name, std::optional<int64_t> &value, const char *meaning);

    // Options; `names` such as "-f,--follow", `kind` the help's word for the value.
    Command &flag(const char *names, bool &value, const char *meaning);
    Command &option(const char *names, std::string &value, const char *kind, const char *meaning);
    Command &choice(const char *names, std::string &value, const std::vector<std::string> &choices,
                    const char *meaning);
    Command &number(const char *names, std::optional<int64_t> &value, const char *kind, int64_t least, int64_t most,
                    const char *meaning);
    // May be given several times.
    Command &list(const char *names, std::vector<std::string> &values, const char *kind, const char *meaning);

    // What help prints below the arguments.
    Command &footer(const std::string &text);
    // What the command does; it throws what goes wrong.
    Command &runs(std::function<void()> work);

  private:
    CLI::App *app_;
};

// Reads the command line and runs the command that it names, or prints the help or version that it asks for. Throws a
// Failure for a wrong one, and what the command throws.
void runCommandLine(int argc, char **argv, Tool &tool);

} // namespace sandbox
