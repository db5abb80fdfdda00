// SPDX-License-Identifier: MIT
#include "tool/command_line.h"

#include "help/folded_formatter.h"
#include "help/similar.h"
#include "tool/command.h"
#include "value/escape.h"
#include "value/secret.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

namespace sandbox {
namespace {

constexpr const char *kFooter =
    "Examples:\n"
    "  caltofal-sandbox list\n"
    "  caltofal-sandbox new lab --from dhcp\n"
    "  caltofal-sandbox export lab Device.WiFi. > wifi.tr181\n"
    "  caltofal-sandbox fault add Device.Hosts. --code store-failed --nth 3\n\n"
    "The gateway is chosen by -g, else by CALTOFAL_GATEWAY, else it is \"home\". Gateways are kept in "
    "CALTOFAL_SANDBOX_DIR, else in caltofal/ below XDG_STATE_HOME or ~/.local/state.\n"
    "Exit codes: 0 done, 1 failed (diff: different), 2 usage, 10 absent.";

constexpr const char *kName = "caltofal-sandbox";

// The help without the parser's own marks.
class PlainFormatter : public help::FoldedFormatter {
  public:
    std::string make_option_usage(const CLI::Option *option) const override {
        return option->get_required() ? option->get_name() : "[" + option->get_name() + "]";
    }
    std::string make_option_opts(const CLI::Option *option) const override {
        constexpr std::string_view kAnyText = "TEXT";
        std::string kind = option->get_type_name();
        if (kind.starts_with(kAnyText)) {
            kind.replace(0, kAnyText.size(), option->get_positional() ? "" : "WORD");
        }
        return kind.empty() ? "" : " " + kind;
    }
};

// Checks of a value: each answers what is wrong with it, "" for nothing.
CLI::Validator filled() {
    return {[](std::string &text) { return std::string(text.empty() ? "is empty" : ""); }, ""};
}

CLI::Validator oneOf(const std::vector<std::string> &choices) {
    const auto check = [choices](std::string &text) -> std::string {
        if (std::find(choices.begin(), choices.end(), text) != choices.end()) {
            return "";
        }
        return inQuotes(text) + " is not one of " + CLI::detail::join(choices, ", ");
    };
    return {check, "{" + CLI::detail::join(choices, ",") + "}"};
}

CLI::Validator between(int64_t least, int64_t most) {
    const auto check = [least, most](std::string &text) -> std::string {
        int64_t number = 0;
        const bool fits = CLI::detail::lexical_cast(text, number) && number >= least && number <= most;
        return fits ? ""
                    : inQuotes(text) + " is not a number from " + std::to_string(least) + " to " + std::to_string(most);
    };
    return {check, ""};
}

// " (did you mean list?)" for "lst" or "listt"; "" where no command is near.
std::string meantBy(const std::string &word, const CLI::App &app) {
    std::vector<std::string> names;
    for (const CLI::App *one : app.get_subcommands([](const CLI::App *) { return true; })) {
        names.push_back(one->get_name());
    }
    return help::didYouMean(word, names);
}

// The help of the command that the words name.
std::string helpOf(CLI::App &app, const std::vector<std::string> &words) {
    CLI::App *command = &app;
    std::string names = kName;
    for (const std::string &word : words) {
        names += " " + word;
        try {
            command = command->get_subcommand(word);
        } catch (const CLI::OptionNotFound &) {
            throw Failure("help: " + inQuotes(word) + " is not a command" + meantBy(word, *command) + "; see " + kName +
                              " --help",
                          kUsage);
        }
    }
    return app.get_formatter()->make_help(command, names, CLI::AppFormatMode::Normal);
}

void addHelp(CLI::App &app) {
    auto words = makeOptions<std::vector<std::string>>();
    Command(app)
        .add("help", "Show the arguments of a command, and examples")
        .words("COMMAND", *words, 2, "The command; without it, all commands are listed")
        .runs([&app, words] { std::cout << helpOf(app, *words); });
}

// The command as far as it was recognised, and its words: "fault add".
std::pair<const CLI::App *, std::string> chosenCommand(const CLI::App &app) {
    const CLI::App *command = &app;
    std::string words;
    while (!command->get_subcommands().empty()) {
        command = command->get_subcommands().front();
        words += (words.empty() ? "" : " ") + command->get_name();
    }
    return {command, words};
}

// A word that no argument takes.
std::string strangerOf(const std::vector<std::string> &rest, const CLI::App &app, bool command) {
    const auto option = std::find_if(rest.begin(), rest.end(), [](const auto &word) { return word.starts_with('-'); });
    if (option != rest.end()) {
        return quotedName(*option) + " is not an option";
    }
    return quotedName(rest.front()) +
           (command ? " is not a command" + meantBy(rest.front(), app) : " is one word too many");
}

// What is wrong. The parser's texts begin with the argument's name, up to a colon or a blank.
std::string faultOf(const CLI::App &app, const CLI::App &chosen, const CLI::ParseError &error) {
    std::string message = error.what();
    const std::string name = message.substr(0, message.find_first_of(": "));
    const bool group = chosen.get_require_subcommand_min() > 0;
    if (const std::vector<std::string> rest = app.remaining(true); !rest.empty()) {
        return strangerOf(rest, chosen, group);
    }
    if (dynamic_cast<const CLI::RequiredError *>(&error)) {
        return group ? "which command?" : name + " is missing";
    }
    if (dynamic_cast<const CLI::ArgumentMismatch *>(&error)) {
        return name +
               (message.find(" required but received ") != std::string::npos ? " is given twice" : " needs a value");
    }
    if (dynamic_cast<const CLI::ConversionError *>(&error)) { // only numbers and flags are converted
        return inQuotes(message.substr(message.rfind(' ') + 1)) + " is not understood";
    }
    if (dynamic_cast<const CLI::ValidationError *>(&error)) {
        return name + message.substr(message.find(':') + 1);
    }
    return message;
}

// Takes the words after "--" off the arguments of `run`, exactly as they are: what is left is for the parser.
void takeWords(int &argc, char **argv, Tool &tool) {
    using namespace std::string_view_literals;
    char **const end = argv + argc;
    char **const mark = std::find(argv, end, "--"sv);
    if (mark != end && std::find(argv, mark, "run"sv) != mark) {
        tool.words.assign(mark + 1, end);
        argc = static_cast<int>(mark - argv);
    }
}

} // namespace

Command Command::add(const char *name, const char *meaning) {
    return Command(*app_->add_subcommand(name, meaning));
}

Command Command::group(const char *name, const char *meaning) {
    CLI::App *group = app_->add_subcommand(name, meaning);
    group->require_subcommand(1);
    return Command(*group);
}

Command &Command::word(const char *name, std::string &value, const char *meaning, Need need) {
    app_->add_option(name, value, meaning)->required(need == Need::Required)->check(filled());
    return *this;
}

Command &Command::words(const char *name, std::vector<std::string> &values, int most, const char *meaning) {
    app_->add_option(name, values, meaning)->expected(1, most)->check(filled());
    return *this;
}

Command &Command::number(const char *name, std::optional<int64_t> &value, const char *meaning) {
    app_->add_option(name, value, meaning);
    return *this;
}

Command &Command::flag(const char *names, bool &value, const char *meaning) {
    app_->add_flag(names, value, meaning);
    return *this;
}

Command &Command::option(const char *names, std::string &value, const char *kind, const char *meaning) {
    app_->add_option(names, value, meaning)->type_name(kind)->check(filled());
    return *this;
}

Command &Command::choice(const char *names, std::string &value, const std::vector<std::string> &choices,
                         const char *meaning) {
    app_->add_option(names, value, meaning)->check(oneOf(choices));
    return *this;
}

Command &Command::number(const char *names, std::optional<int64_t> &value, const char *kind, int64_t least,
                         int64_t most, const char *meaning) {
    app_->add_option(names, value, meaning)->type_name(kind)->check(between(least, most));
    return *this;
}

Command &Command::list(const char *names, std::vector<std::string> &values, const char *kind, const char *meaning) {
    app_->add_option(names, values, meaning)->type_name(kind)->allow_extra_args(false)->check(filled());
    return *this;
}

Command &Command::footer(const std::string &text) {
    app_->footer(text);
    return *this;
}

Command &Command::runs(std::function<void()> work) {
    app_->callback(std::move(work));
    return *this;
}

void runCommandLine(int argc, char **argv, Tool &tool) {
    takeWords(argc, argv, tool);
    CLI::App app("Gateways on a laptop: what the sandbox's configuration layer serves.", kName);
    app.formatter(std::make_shared<PlainFormatter>());
    app.set_version_flag("-V,--version", std::string(kName) + " " + CALTOFAL_VERSION, "Print the version");
    app.set_help_flag("-h,--help", "Print this help");
    app.require_subcommand(1);
    app.fallthrough();
    Command root(app);
    root.option("-g,--gateway", tool.gateway, "NAME", "The gateway to work on");
    addCommands(root, tool);
    addHelp(app);
    app.footer(kFooter); // last: commands take over what is there when they are added
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success &success) {
        app.exit(success);
    } catch (const CLI::ParseError &error) {
        const auto [command, words] = chosenCommand(app);
        const std::string fault = faultOf(app, *command, error);
        throw Failure((words.empty() ? fault : words + ": " + fault) + "; see " + kName + (words.empty() ? "" : " ") +
                          words + " --help",
                      kUsage);
    }
}

} // namespace sandbox
