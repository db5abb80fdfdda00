// SPDX-License-Identifier: MIT
#include "exchange/demo.h"
#include "exchange/file_format.h"
#include "exchange/gateway.h"
#include "exchange/gateway_export.h"
#include "exchange/gateway_file.h"
#include "store/store.h"
#include "tool/command.h"

#include <filesystem>

namespace sandbox {
namespace {

constexpr const char *kUsualDemo = "home";

struct NewOptions {
    std::string name;
    std::string from;
};

// What a gateway has now, stored and running.
FileContent contentOf(const Location &gateway) {
    const std::unique_ptr<Database> database = openGateway(gateway);
    const Transaction transaction(*database, Transaction::Kind::Read);
    return {exportEntries(*database, "", View::Both), std::nullopt};
}

FileContent demoContent(const Demo &demo) {
    return {readGatewayFile(demo.text, std::string(demo.name) + ".tr181"), std::nullopt};
}

// Without `from` the demo of the gateway's own name, else the usual one: as it is delivered, not as a gateway made of
// it has become.
FileContent contentFor(const std::string &name, const std::string &from) {
    if (from.empty()) {
        const Demo *demo = findDemo(name);
        return demoContent(demo ? *demo : *findDemo(kUsualDemo));
    }
    if (isGatewayName(from) && storeExists(Location::named(from))) {
        return contentOf(Location::named(from));
    }
    if (const Demo *demo = findDemo(from)) {
        return demoContent(*demo);
    }
    if (from != "-" && !std::filesystem::exists(from)) {
        throw Failure(from + " is neither a gateway nor a file" + nearGateways(from, Location::current().directory),
                      kAbsent);
    }
    return readContent(from);
}

} // namespace

void addNew(Command &root, Tool &tool) {
    auto options = makeOptions<NewOptions>();
    Command command = root.add("new", "Make a gateway");
    command.word("NAME", options->name, R"(Its name: letters, digits, "_", and behind the first one "." and "-")",
                 Need::Required);
    command.option("--from", options->from, "GATEWAY|FILE",
                   "A gateway as it is now, a demo or a file; without it, the demo of that name, else home");
    command.footer("Examples:\n  caltofal-sandbox new lab --from dhcp\n  caltofal-sandbox new copy --from lab\n"
                   "  caltofal-sandbox new lab --from lab.tr181");
    command.runs([&tool, options] {
        const Location location = tool.location(options->name);
        const std::string from = !options->from.empty()    ? options->from
                                 : findDemo(options->name) ? options->name
                                                           : kUsualDemo;
        FileContent content = contentFor(options->name, options->from);
        ImportReport *report = content.report ? &*content.report : nullptr;
        if (!createGateway(location, content.entries, from, report)) {
            throw Failure("there is a gateway " + location.name + " already");
        }
        if (report) {
            say(location.name + ": " + report->text());
        }
        say("made gateway " + location.name + " of " + from);
    });
}

} // namespace sandbox
