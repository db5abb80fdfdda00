// SPDX-License-Identifier: MIT
#include "exchange/demo.h"
#include "exchange/file_format.h"
#include "exchange/gateway.h"
#include "exchange/gateway_file.h"
#include "tool/command.h"

namespace sandbox {
namespace {

constexpr const char *kUsualDemo = "home";

struct Options {
    std::string name;
    std::string from;
};

Entries sourceEntries(const std::string &from) {
    if (const Demo *demo = findDemo(from)) {
        return readGatewayFile(demo->text, from + ".tr181");
    }
    return readEntries(formatOf("", from), readWhole(from), from);
}

} // namespace

void addNew(Command &root, Tool &tool) {
    auto options = makeOptions<Options>();
    Command command = root.add("new", "Make a gateway");
    command.word("NAME", options->name, R"(Its name: letters, digits, ".", "_" and "-")", Need::Required);
    command.option("--from", options->from, "DEMO|FILE",
                   "A demo or a file; without it, the demo of that name, else home");
    command.footer("Examples:\n  caltofal-sandbox new lab --from dhcp\n  caltofal-sandbox new lab --from lab.tr181");
    command.runs([&tool, options] {
        const Location location = tool.location(options->name);
        const std::string from = !options->from.empty()    ? options->from
                                 : findDemo(options->name) ? options->name
                                                           : kUsualDemo;
        if (!createGateway(location, sourceEntries(from), from)) {
            throw Failure("there is a gateway " + location.name + " already");
        }
        say("made gateway " + location.name + " of " + from);
    });
}

} // namespace sandbox
