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

void addImport(Command &root, Tool &tool) {
    auto options = makeOptions<Options>();
    Command command = root.add("import", "Merge a file into a gateway, which is made where it does not exist");
    command.word("NAME", options->name, "The gateway", Need::Required);
    command.word("FILE", options->file, "The file; - for standard input", Need::Required);
    command.choice("--format", options->format, formatNames(), "tr181, csv or json; without it, by the file's name");
    command.flag("--replace", options->replace, "Start from an empty gateway");
    command.footer("All of the file is taken in, or nothing.\n\nExamples:\n"
                   "  caltofal-sandbox import home hosts.csv\n"
                   "  caltofal-sandbox export lab | caltofal-sandbox import copy -");
    command.runs([&tool, options] {
        const Location location = tool.location(options->name);
        const FileFormat format = formatOf(options->format, options->file);
        const Entries entries = readEntries(format, readWhole(options->file), options->file);
        const bool made = importFile(location, entries, *options);
        say(location.name + (made ? ": made of " : ": took in ") + counted(entries.size(), "entry", "entries"));
    });
}

} // namespace sandbox
