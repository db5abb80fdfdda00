// SPDX-License-Identifier: MIT
#include "command_line.h"

#include "failure.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <sstream>

namespace cli {
namespace {

constexpr const char *kExitCodes = R"(Data goes to standard output, words to standard error.
Exit codes: 0 done, 1 failed, 2 wrong usage, 3 time out, 4 no gateway,
            5 value refused (read-only, type, range), 10 no such object, parameter or match

`caltofal NOUN --help` shows a noun's arguments and examples.)";

std::string examplesOf(const Noun &noun) {
    std::string result = "Examples:";
    std::istringstream lines(noun.examples);
    std::string line;
    do {
        line.clear();
        std::getline(lines, line);
        result += std::string("\n  caltofal ") + noun.name + (line.empty() ? "" : " ") + line;
    } while (!lines.eof() && !lines.fail());
    return result;
}

void addCommonOptions(CLI::App &app, Options &options) {
    app.add_flag("--json", options.json, "Print JSON, errors too");
    app.add_flag("--trace", options.trace, "Show what the library prints, and its requests, on standard error");
    app.add_option("-g,--gateway", options.gateway, "The sandbox's gateway to talk to")->type_name("NAME");
    app.set_version_flag("--version", std::string("caltofal ") + CALTOFAL_VERSION, "Print the version");
    app.set_help_flag("-h,--help", "Print this help");
}

// The parser's words, with the culprit where it names none.
std::string reasonOf(const CLI::App &app, const CLI::ParseError &error) {
    const std::vector<CLI::App *> chosen = app.get_subcommands();
    const std::string message = std::string(error.what()).substr(0, std::string(error.what()).find('\n'));
    if (!chosen.empty()) {
        const std::string noun = chosen.front()->get_name();
        return noun + ": " + message + "; see caltofal " + noun + " --help";
    }
    const std::vector<std::string> rest = app.remaining();
    if (!rest.empty()) {
        return "\"" + rest.front() + "\" is neither a noun nor an option; see caltofal --help";
    }
    const bool noNoun = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError);
    return (noNoun ? "what to do is missing" : message) + "; see caltofal --help";
}

} // namespace

Run parse(int argc, char **argv, Options &options) {
    CLI::App app("Reads and changes a residential gateway's TR-181 configuration.", "caltofal");
    addCommonOptions(app, options);
    app.require_subcommand(1);
    app.footer(kExitCodes);
    app.get_formatter()->column_width(26);
    Run chosen;
    for (const Noun *noun : nouns()) {
        CLI::App *command = app.add_subcommand(noun->name, noun->summary);
        command->fallthrough();
        command->footer(examplesOf(*noun));
        const Run run = noun->define(*command);
        command->callback([&chosen, run] { chosen = run; });
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &success) {
        app.exit(success, std::cout, std::cerr);
        return {};
    } catch (const CLI::ParseError &error) {
        throw Usage(reasonOf(app, error));
    }
    return chosen;
}

} // namespace cli
