// SPDX-License-Identifier: MIT
#include "caltofal/command_line.h"

#include "caltofal/assigned_words.h"
#include "caltofal/print.h"
#include "caltofal/typed_words.h"
#include "help/folded_formatter.h"
#include "help/similar.h"
#include "pages/checked.h"
#include "pages/text.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <deque>
#include <iostream>
#include <sstream>

namespace cli {

using pages::Usage;

namespace {

constexpr const char *kExitCodes = R"(Data goes to standard output, words to standard error.
Exit codes: 0 done, 1 failed, 2 wrong usage, 3 time out, 4 no gateway,
            5 value refused (read-only, type, range),
            10 no such object, parameter or match,
            77 no device box in this sandbox, 128 + N ended by signal N

`caltofal NOUN --help` shows a noun's arguments and examples.)";

constexpr int kWatchMax = 86400; // a day
constexpr const char *kDefaultSeconds = "2";

constexpr const char *kCommonOptions =
    "Options of every command, told by caltofal --help:\n"
    "-j/--json, --terse, --columns, --show-secrets, --watch, --trace, -g/--gateway, -V/--version";

// The parser's words.
constexpr const char *kVerbMissing = "A subcommand is required";
constexpr const char *kGivenAgain = "At Most 1 required but received ";

std::string notEmpty(const std::string &value) {
    return value.empty() ? "is empty" : "";
}

int secondsOf(const std::string &word) {
    try {
        return pages::checkedNumber(word, "--watch", 1, kWatchMax);
    } catch (const Usage &) {
        throw Usage("--watch takes whole seconds from 1 to " + std::to_string(kWatchMax) + ", not " +
                    pages::inQuotes(word));
    }
}

// As the sandbox has it: another name must not reach its trace, as it may be a value that was typed in the wrong place.
void checkGatewayName(const std::string &name) {
    const auto mayStand = [](unsigned char c) { return std::isalnum(c) != 0 || c == '.' || c == '_' || c == '-'; };
    if (!std::all_of(name.begin(), name.end(), mayStand)) {
        throw Usage("--gateway: " + pages::inQuotes(name) +
                    " is not a gateway name: letters, digits, '.', '_' and '-'");
    }
}

// A word too many behind --watch was meant for its time.
void refuseWatchWord(const std::vector<std::string> &words, const std::vector<std::string> &rest) {
    const auto watch = std::find(words.begin(), words.end(), kDefaultWatch);
    if (rest.size() == 1 && watch != words.end() && std::next(watch) != words.end() && *std::next(watch) == rest[0]) {
        secondsOf(rest[0]);
    }
}

struct Common {
    Options &options;
    std::string columns, watch;

    void add(CLI::App &app) {
        app.add_flag("-j,--json", options.form.json, "Print JSON, errors too");
        app.add_flag("--terse", options.form.terse, "For scripts: no headings, a tab between the cells");
        app.add_option("--columns", columns, "Only these columns, by their headings, in this order")
            ->type_name("NAMES")
            ->check(notEmpty);
        app.add_flag("--show-secrets", options.secrets, "Show pass phrases, passwords and keys");
        app.add_option("--watch", watch, "Show the page anew every so many seconds, 2 where not given")
            ->type_name("[SECONDS]");
        app.add_flag("--trace", options.trace, "Show what the library prints, and its requests, on standard error");
        app.add_option("-g,--gateway", options.gateway, "The sandbox's gateway to talk to")
            ->type_name("NAME")
            ->check(notEmpty);
        app.set_version_flag("-V,--version", std::string("caltofal ") + CALTOFAL_VERSION, "Print the version");
        app.set_help_flag("-h,--help", "Print this help");
    }

    void take() const {
        if (options.form.json && (options.form.terse || !columns.empty())) {
            throw Usage("--json goes with neither --terse nor --columns");
        }
        checkGatewayName(options.gateway);
        if (!watch.empty()) {
            options.watch = secondsOf(watch == kDefaultWatch ? kDefaultSeconds : watch);
        }
        for (size_t at = 0; at < columns.size();) {
            const size_t end = std::min(columns.find(',', at), columns.size());
            options.form.columns.push_back(columns.substr(at, end - at));
            at = end + 1;
        }
    }
};

// "wifi channels": the noun, and the verb where it has some.
std::string chosenWords(const CLI::App &app) {
    std::string words;
    for (const CLI::App *command = &app; !command->get_subcommands().empty();) {
        command = command->get_subcommands().front();
        words += (words.empty() ? "" : " ") + command->get_name();
    }
    return words;
}

const CLI::App &chosen(const CLI::App &app) {
    const CLI::App *command = &app;
    while (!command->get_subcommands().empty()) {
        command = command->get_subcommands().front();
    }
    return *command;
}

// What the parser wrote between two texts; "" where they are not there.
std::string textBetween(const std::string &message, const std::string &before, const std::string &behind) {
    const size_t start = message.find(before);
    const size_t end = message.find(behind, start == std::string::npos ? start : start + before.size());
    return end == std::string::npos ? "" : message.substr(start + before.size(), end - start - before.size());
}

bool isOption(const std::string &word) {
    return word.starts_with('-');
}

// The one of several words not understood that is to blame: an option, else the first.
std::string culpritOf(const std::vector<std::string> &words) {
    const auto option = std::find_if(words.begin(), words.end(), isOption);
    return option == words.end() ? words.front() : *option;
}

// What the parser knows below a command: nouns or verbs, or options.
std::vector<std::string> knownTo(const CLI::App &app, bool options) {
    std::vector<std::string> names;
    for (const CLI::App *one : app.get_subcommands([](const CLI::App *) { return true; })) {
        if (!options) {
            names.push_back(one->get_name());
        }
    }
    for (const CLI::App *level = &app; level && options; level = level->get_parent()) {
        for (const CLI::Option *option : level->get_options()) {
            for (const std::string &name : option->get_lnames()) {
                names.push_back("--" + name);
            }
        }
    }
    return names;
}

// A word where a noun or a verb should be, or none.
std::string nothingToDo(const CLI::App &command, const std::vector<std::string> &rest, bool verb) {
    if (rest.empty()) {
        return "what to do is missing";
    }
    if (!isOption(rest.front()) && rest.front().find('=') != std::string::npos) {
        return takesNoValue(rest.front(), {}, "");
    }
    const std::string word = withoutValue(rest.front());
    const char *const ofNoun = isOption(word) ? "not an option of it" : "not a verb of it";
    return "\"" + word + "\" is " + (verb ? ofNoun : "neither a noun nor an option") +
           help::didYouMean(word, knownTo(command, isOption(word)));
}

// What is wrong, in the tool's words. The parser's begin with the argument's name, up to a colon or a blank.
std::string faultOf(const CLI::App &app, const std::string &words, const CLI::ParseError &error) {
    const std::string message = error.what();
    const std::string name = message.substr(0, message.find_first_of(": "));
    const std::vector<std::string> rest = app.remaining(true);
    if (message.starts_with(kVerbMissing) || (words.empty() && !rest.empty())) {
        return nothingToDo(chosen(app), rest, !words.empty());
    }
    if (dynamic_cast<const CLI::ExtrasError *>(&error) && !rest.empty()) {
        const std::string culprit = culpritOf(rest);
        if (!isOption(culprit) && culprit.find('=') != std::string::npos) {
            return takesNoValue(culprit, {}, words);
        }
        return "\"" + withoutValue(culprit) +
               (isOption(culprit) ? "\" is not an option of it" + help::didYouMean(culprit, knownTo(chosen(app), true))
                                  : "\" is one argument too many");
    }
    if (dynamic_cast<const CLI::RequiredError *>(&error)) {
        return name + " is missing";
    }
    if (dynamic_cast<const CLI::ArgumentMismatch *>(&error)) {
        return message.find(kGivenAgain) != std::string::npos
                   ? name + " is given twice"
                   : name + " needs a value (" + textBetween(message, " required ", " missing") + ")";
    }
    if (dynamic_cast<const CLI::ConversionError *>(&error)) { // only flags are converted
        return textBetween(message, "Could not convert: ", " =") + " takes no value";
    }
    return dynamic_cast<const CLI::ValidationError *>(&error) ? name + " is empty" : message;
}

// With the noun and verb that it is about, "" for none.
std::string withHelp(const std::string &words, const std::string &fault) {
    return (words.empty() ? "" : words + ": ") + fault + "; see caltofal " + (words.empty() ? "" : words + " ") +
           "--help";
}

std::string reasonOf(const CLI::App &app, const CLI::ParseError &error) {
    const std::string words = chosenWords(app);
    return withHelp(words, faultOf(app, words, error));
}

std::string examplesOf(const std::string &words, const char *examples) {
    std::string result = std::string(kCommonOptions) + "\n\nExamples:";
    std::istringstream lines(examples);
    std::string line;
    do {
        line.clear();
        std::getline(lines, line);
        result += "\n  " + words + (line.empty() ? "" : " ") + line;
    } while (!lines.eof() && !lines.fail());
    return result;
}

using Words = std::vector<std::string>;

// The commands as the parser takes them, and which one was found.
struct Parser {
    const Command *command = nullptr;
    const CLI::App *top = nullptr;
    const CLI::App *app = nullptr;
    std::deque<Words> words; // of the arguments that take several

    void addArgument(CLI::App &to, const Argument &argument) {
        switch (argument.take) {
        case Take::Flag:
            to.add_flag(argument.name, argument.what);
            break;
        case Take::Word:
        case Take::Text:
            to.add_option(argument.name, argument.what)->required()->option_text(argument.type);
            break;
        case Take::Optional:
            to.add_option(argument.name, argument.what)->option_text(argument.type)->check(notEmpty);
            break;
        case Take::MayBeAny:
            to.add_option(argument.name, argument.what)->option_text(argument.type);
            break;
        case Take::Words:
        case Take::Assignments:
            to.add_option(argument.name, words.emplace_back(), argument.what)->required()->option_text(argument.type);
            break;
        case Take::AnyWords:
            to.add_option(argument.name, words.emplace_back(), argument.what)->option_text(argument.type);
            break;
        case Take::Option:
            to.add_option(argument.name, argument.what)->type_name(argument.type)->check(notEmpty);
            break;
        case Take::Repeatable:
            to.add_option(argument.name, words.emplace_back(), argument.what)
                ->type_name(argument.type)
                ->allow_extra_args(false);
            break;
        }
    }

    void addCommands(CLI::App &parent, const std::string &before, std::span<const Command> all) {
        for (const Command &one : all) {
            CLI::App *child = parent.add_subcommand(one.name, one.summary);
            const std::string path = before + " " + one.name;
            child->fallthrough();
            child->footer(examplesOf(path, one.examples));
            for (const Argument &argument : one.arguments) {
                addArgument(*child, argument);
            }
            if (one.verbs.empty()) {
                child->callback([this, &one, child] {
                    command = &one;
                    app = child;
                });
            } else {
                child->require_subcommand(1);
                addCommands(*child, path, one.verbs);
            }
        }
    }

    // What is read is named: a word with "=" was meant for a command that writes, and must not reach the gateway.
    // Several words are paths and names, without the colons of an address: these are a slip too, but for those in
    // brackets.
    void refuseValues(Take take, const Words &typed) const {
        const bool several = take == Take::Words || take == Take::AnyWords;
        const bool names = several || take == Take::Word || take == Take::Optional;
        const auto slip = std::find_if(typed.begin(), typed.end(), [several](const std::string &word) {
            const size_t mark = word.find_first_of(several ? "=:[" : "=");
            return word.find('=') != std::string::npos || (mark != std::string::npos && word[mark] == ':');
        });
        if (names && slip != typed.end()) {
            throw Usage(takesNoValue(*slip, {typed.begin(), slip}, chosenWords(*top)));
        }
    }

    [[nodiscard]] Arguments arguments() const {
        Arguments result;
        for (const Argument &argument : command->arguments) {
            const CLI::Option *option = app->get_option(argument.name);
            if (option->count() > 0) {
                refuseValues(argument.take, option->results());
                result.set(argument.name, option->results());
            }
        }
        return result;
    }
};

} // namespace

void namingCommand(const Task &task, const std::function<void()> &act) {
    try {
        act();
    } catch (const Usage &usage) {
        throw Usage(withHelp(task.words, usage.what()));
    }
}

Task parse(const std::vector<std::string> &words, Options &options) {
    CLI::App app("Reads and changes a residential gateway's TR-181 configuration.", "caltofal");
    Common common{options, {}, {}};
    app.formatter(std::make_shared<help::FoldedFormatter>()); // before the commands, which take it over
    common.add(app);
    app.require_subcommand(1);
    app.footer(kExitCodes);
    app.get_formatter()->column_width(26);
    Parser parser;
    parser.top = &app;
    for (const std::span<const Command> group : commands()) {
        parser.addCommands(app, "caltofal", group);
    }
    app.add_subcommand("help", "Show the arguments of a noun, and examples")->disabled(); // parserWords() knows it
    try {
        app.parse(std::vector<std::string>(words.rbegin(), words.rend())); // from the last to the first
    } catch (const CLI::Success &success) {
        app.exit(success, std::cout, std::cerr);
        flushOutput();
        return {};
    } catch (const CLI::ParseError &error) {
        namingCommand({nullptr, {}, chosenWords(app)}, [&] { refuseWatchWord(words, app.remaining(true)); });
        throw Usage(reasonOf(app, error));
    }
    Task task{parser.command, {}, chosenWords(app)};
    namingCommand(task, [&] {
        common.take();
        if (options.watch > 0 && (task.command->traits & kActs) != 0) {
            throw Usage("--watch is for pages: this would be done again and again");
        }
        task.show = task.command->prepare(parser.arguments());
    });
    return task;
}

} // namespace cli
