// SPDX-License-Identifier: MIT
#include "exchange/demo.h"
#include "exchange/file_format.h"
#include "exchange/gateway_export.h"
#include "store/model.h"
#include "store/store.h"
#include "tool/command.h"

#include <iostream>

namespace sandbox {
namespace {

struct ExportOptions {
    std::vector<std::string> arguments; // [NAME] [PATH]
    std::string format;
    bool stored = false;
};

// A single argument is a path unless a gateway has that name.
bool isPath(const std::string &argument) {
    const bool gateway = isGatewayName(argument) && isGateway(Location::named(argument));
    return argument.find('.') != std::string::npos && !gateway;
}

} // namespace

void addExport(Command &root, Tool &tool) {
    auto options = makeOptions<ExportOptions>();
    Command command = root.add("export", "Write a gateway, or the branch at PATH, to standard output");
    command.words("NAME PATH", options->arguments, 2, "The gateway; the object to begin at");
    command.choice("--format", options->format, formatNames(), "tr181 (the default), csv or json");
    command.flag("--stored", options->stored, "Stored values only, as after the next boot");
    command.footer("Examples:\n  caltofal-sandbox export > home.tr181\n"
                   "  caltofal-sandbox export lab --format json Device.WiFi.");
    command.runs([&tool, options] {
        std::vector<std::string> arguments = options->arguments;
        if (arguments.size() == 1 && isPath(arguments.front())) {
            arguments.insert(arguments.begin(), "");
        }
        arguments.resize(2);
        const std::string key = arguments[1].empty() ? "" : keyOfArgument(arguments[1]);
        const FileFormat format = options->format.empty() ? FileFormat::Gateway : formatOf(options->format);

        const std::unique_ptr<Database> database = tool.open(arguments[0]);
        const Transaction transaction(*database, Transaction::Kind::Read);
        if (!key.empty() && !findObject(*database, key)) {
            throw Failure(arguments[1] + ": no such object", kAbsent);
        }
        writeEntries(format, exportEntries(*database, key, options->stored ? View::Stored : View::Both), std::cout);
    });
}

} // namespace sandbox
