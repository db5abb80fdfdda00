// SPDX-License-Identifier: MIT
#include "command_line.h"

#include "arguments.h"
#include "command.h"
#include "failure.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

namespace cli {
namespace {

constexpr const char *kExitCodes = R"(Data goes to standard output, words to standard error.
Exit codes: 0 done, 1 failed, 2 wrong usage, 3 time out, 4 no gateway,
            5 value refused (read-only, type, range), 10 no such object, parameter or match,
            77 no device box in this sandbox, 128 + N ended by signal N

`caltofal NOUN --help` shows a noun's arguments and examples.)";

constexpr const char *kVerbMissing = "A subcommand is required"; // the parser's words

void addCommonOptions(CLI::App &app, Options &options) {
    app.add_flag("--json", options.json, "Print JSON, errors too");
    app.add_flag("--trace", options.trace, "Show what the library prints, and its requests, on standard error");
    app.add_option("-g,--gateway", options.gateway, "The sandbox's gateway to talk to")
        ->type_name("NAME")
        ->check(notEmpty);
    app.set_version_flag("--version", std::string("caltofal ") + CALTOFAL_VERSION, "Print the version");
    app.set_help_flag("-h,--help", "Print this help");
}

// "wifi channels": the noun, and the verb where it has some.
std::string chosenWords(const CLI::App &app) {
    std::string words;
    for (const CLI::App *command = &app; !command->get_subcommands().empty();) {
        command = command->get_subcommands().front();
        words += (words.empty() ? "" : " ") + command->get_name();
    }
    return words;
}

// The parser's words, with the culprit where it names none.
std::string reasonOf(const CLI::App &app, const CLI::ParseError &error) {
    const std::string message = std::string(error.what()).substr(0, std::string(error.what()).find('\n'));
    const bool missing = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError);
    if (const std::string words = chosenWords(app); !words.empty()) {
        const std::string verb = app.remaining(true).empty() ? "" : app.remaining(true).front();
        if (missing && message == kVerbMissing) {
            return words + ": " + (verb.empty() ? "what to do is missing" : "\"" + verb + "\" is no verb of it") +
                   "; see caltofal " + words + " --help";
        }
        return words + ": " + message + "; see caltofal " + words + " --help";
    }
    const std::vector<std::string> rest = app.remaining();
    if (!rest.empty()) {
        return "\"" + rest.front() + "\" is neither a noun nor an option; see caltofal --help";
    }
    return (missing ? "what to do is missing" : message) + "; see caltofal --help";
}

} // namespace

Run parse(int argc, char **argv, Options &options) {
    CLI::App app("Reads and changes a residential gateway's TR-181 configuration.", "caltofal");
    addCommonOptions(app, options);
    app.require_subcommand(1);
    app.footer(kExitCodes);
    app.get_formatter()->column_width(26);
    const auto chosen = std::make_shared<Run>();
    for (const Noun *noun : nouns()) {
        addCommand(app, "caltofal", *noun, chosen);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &success) {
        app.exit(success, std::cout, std::cerr);
        flushOutput();
        return {};
    } catch (const CLI::ParseError &error) {
        throw Usage(reasonOf(app, error));
    }
    return *chosen;
}

} // namespace cli
