// SPDX-License-Identifier: MIT
#include "exchange/demo.h"
#include "exchange/file_format.h"
#include "exchange/gateway.h"
#include "exchange/gateway_import.h"
#include "tool/command.h"

namespace sandbox {
namespace {

struct Options {
    std::string name;
    std::string file;
    std::string format;
    bool replace = false;
};

void merge(Database &database, const Entries &entries, const Options &options) {
    Transaction transaction(database, Transaction::Kind::Write);
    if (options.replace) {
        clearModel(database);
    }
    importEntries(database, entries, options.file);
    transaction.commit();
}

// True when the gateway was made of the file.
bool importFile(const Location &location, const Entries &entries, const Options &options) {
    const bool fromDemo = findDemo(location.name) && !options.replace;
    if (!fromDemo && createGateway(location, entries, options.file)) {
        return true;
    }
    merge(*openGateway(location), entries, options);
    return false;
}

} // namespace

void addImport(CLI::App &app, Tool &tool) {
    auto options = makeOptions<Options>();
    CLI::App *command =
        app.add_subcommand("import", "Merge a file into a gateway, which is made where it does not exist");
    command->add_option("NAME", options->name, "The gateway")->required();
    command->add_option("FILE", options->file, "The file; - for standard input")->required();
    command->add_option("--format", options->format, "tr181, csv or json; without it, by the file's name")
        ->check(CLI::IsMember(formatNames()));
    command->add_flag("--replace", options->replace, "Start from an empty gateway");
    command->footer("All of the file is taken in, or nothing.\n\nExamples:\n"
                    "  caltofal-sandbox import home hosts.csv\n"
                    "  caltofal-sandbox export lab | caltofal-sandbox import copy -");
    command->callback([&tool, options] {
        const Location location = tool.location(options->name);
        const FileFormat format = formatOf(options->format, options->file);
        const Entries entries = readEntries(format, readWhole(options->file), options->file);
        const bool made = importFile(location, entries, *options);
        say(location.name + (made ? ": made of " : ": took in ") + std::to_string(entries.size()) + " entries");
    });
}

} // namespace sandbox
