// SPDX-License-Identifier: MIT
//
// caltofal-sandbox: makes, shows and changes the gateways that the sandbox's libcal serves.
#include "tool/command.h"
#include "value/refusal.h"

#include "caltofal.h"

#include <iostream>

namespace sandbox {
namespace {

constexpr Command kCommands[] = {{addNew},   {addList}, {addImport}, {addExport}, {addDiff},  {addBoot},
                                 {addFault}, {addPath}, {addRemove}, {addRun},    {addShell}, {addConsole}};

constexpr const char *kFooter = R"(Examples:
  caltofal-sandbox list
  caltofal-sandbox new lab --from dhcp
  caltofal-sandbox export lab Device.WiFi. > wifi.tr181
  caltofal-sandbox fault add Device.Hosts. --code store-failed --nth 3

The gateway is chosen by -g, else by CALTOFAL_GATEWAY, else it is "home". Gateways are kept in CALTOFAL_SANDBOX_DIR,
else in caltofal/ below XDG_STATE_HOME or ~/.local/state.
Exit codes: 0 done, 1 failed (diff: different), 2 usage, 10 absent.)";

int fail(const std::exception &error, int exitCode) {
    std::cerr << "caltofal-sandbox: " << error.what() << '\n';
    return exitCode;
}

int run(int argc, char **argv) {
    CLI::App app("Gateways on a laptop: what the sandbox's configuration layer serves.", "caltofal-sandbox");
    Tool tool;
    app.set_version_flag("--version", "caltofal-sandbox " CALTOFAL_VERSION);
    app.add_option("-g,--gateway", tool.gateway, "The gateway to work on")->type_name("NAME");
    app.footer(kFooter);
    app.require_subcommand(1);
    app.fallthrough();
    for (const Command &command : kCommands) {
        command.add(app, tool);
    }
    try {
        takeWords(argc, argv, tool);
        app.parse(argc, argv);
        std::cout.flush();
        if (!std::cout) {
            throw Failure("standard output can not be written");
        }
        return tool.exitCode;
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? kDone : kUsage;
    } catch (const Failure &failure) {
        return fail(failure, failure.code());
    } catch (const Refusal &refusal) {
        const bool absent = refusal.code() == CALTOFAL_NO_GATEWAY || refusal.code() == CALTOFAL_ABSENT_OBJECT;
        return fail(refusal, absent ? kAbsent : kFailed);
    }
}

} // namespace
} // namespace sandbox

int main(int argc, char **argv) {
    try {
        return sandbox::run(argc, argv);
    } catch (const std::exception &error) {
        return sandbox::fail(error, sandbox::kFailed);
    }
}
