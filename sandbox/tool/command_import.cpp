// SPDX-License-Identifier: MIT
#include "exchange/demo.h"
#include "exchange/file_format.h"
#include "exchange/gateway.h"
#include "exchange/gateway_import.h"
#include "tool/command.h"

namespace sandbox {
namespace {

struct ImportOptions {
    std::string name;
    std::string file;
    std::string format;
    std::string device;
    bool replace = false;
};

ImportReport *reportOf(FileContent &content) {
    return content.report ? &*content.report : nullptr;
}

void merge(Database &database, FileContent &content, const ImportOptions &options) {
    Transaction transaction(database, Transaction::Kind::Write);
    if (options.replace) {
        clearModel(database);
    }
    importEntries(database, content.entries, options.file, reportOf(content));
    transaction.commit();
}

// True when the gateway was made of the file.
bool importFile(const Location &location, FileContent &content, const ImportOptions &options) {
    const bool fromDemo = findDemo(location.name) && !options.replace;
    if (!fromDemo && createGateway(location, content.entries, options.file, reportOf(content))) {
        return true;
    }
    merge(*openGateway(location), content, options);
    return false;
}

} // namespace

void addImport(Command &root, Tool &tool) {
    auto options = makeOptions<ImportOptions>();
    Command command = root.add("import", "Merge a file into a gateway, which is made where it does not exist");
    command.word("NAME", options->name, "The gateway", Need::Required);
    command.word("FILE", options->file, "The file; - for standard input", Need::Required);
    command.choice("--format", options->format, formatNames(),
                   "tr181, csv or json; without it, by what the file contains");
    command.option("--device", options->device, "ID", "The device to take of a file that holds several");
    command.flag("--replace", options->replace, "Start from an empty gateway");
    command.footer(
        "Gateway files, and the CSV and JSON of `export`, are taken in as a whole or not at all. Exports of an ACS, "
        "lists of name and value, nested and flat JSON of other programs are taken in as they are; what does "
        "not fit is kept as text or left out, and counted.\n\nExamples:\n"
        "  caltofal-sandbox import home hosts.csv\n"
        "  caltofal-sandbox import field acs-export.csv\n"
        "  caltofal-sandbox export lab | caltofal-sandbox import copy -");
    command.runs([&tool, options] {
        const Location location = tool.location(options->name);
        const std::optional<FileFormat> format =
            options->format.empty() ? std::nullopt : std::optional(formatOf(options->format));
        FileContent content = readContent(options->file, format, options->device);
        const bool made = importFile(location, content, *options);
        const std::string entries = counted(content.entries.size(), "entry", "entries");
        say(location.name + ": " +
            (content.report ? content.report->text() : (made ? "made of " : "took in ") + entries));
    });
}

} // namespace sandbox
