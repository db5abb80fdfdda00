// SPDX-License-Identifier: MIT
#include "store/recording.h"
#include "tool/box_entry.h"
#include "tool/command.h"

#include <cstdlib>
#include <iostream>

namespace sandbox {
namespace {

struct RunOptions {
    bool check = false;
    bool trace = false;
    bool recordedOnly = false;
    std::vector<std::string> shown;
};

void tellIfNothingIsRecorded(const Tool &tool) {
    const std::unique_ptr<Database> database = tool.open();
    const Transaction transaction(*database, Transaction::Kind::Read);
    if (recordings(*database).empty()) {
        say("gateway " + tool.location().name +
            " holds no recording, so all is refused: take one with caltofal capture --driver");
    }
}

void run(Tool &tool, const RunOptions &options) {
    if (options.check) {
        enterBox(tool, options.shown, {"/bin/sh", "-c", "exit 0"});
        if (tool.exitCode == kDone) {
            std::cout << "the device box works here\n";
        }
    } else if (tool.words.empty()) {
        throw Failure("run: which command? caltofal-sandbox run -- COMMAND [ARGUMENT...]", kUsage);
    } else {
        if (options.recordedOnly) {
            tellIfNothingIsRecorded(tool);
            setenv("CALTOFAL_BOX_RECORDED_ONLY", "1", 1);
        }
        if (options.trace) {
            setenv("CALTOFAL_SANDBOX_TRACE", "-", 1);
        }
        enterBox(tool, options.shown, tool.words);
    }
}

} // namespace

void addRun(Command &root, Tool &tool) {
    auto options = makeOptions<RunOptions>();
    Command command = root.add("run", "Run a program where the device's paths, tools and daemons are");
    command.flag("--check", options->check, "Only tell whether it can be done here");
    command.flag("--trace", options->trace, "Show each message to the configuration layer on standard error");
    command.flag("--recorded-only", options->recordedOnly,
                 "Of a captured gateway: refuse what was not recorded, instead of making it up");
    addShown(command, options->shown);
    command.footer(R"(Usage: caltofal-sandbox run [-g NAME] [-b DIRECTORY]... -- COMMAND [ARGUMENT...]

Examples:
  caltofal-sandbox run -- caltofal mode
  caltofal-sandbox run -g mesh -- sh -c 'gddbc -i -g /runtime/singlesignoninfo/livingslave/ishasrptslave'

The exit code is the command's; 77 where there can be no box.)");
    command.runs([&tool, options] { run(tool, *options); });
}

} // namespace sandbox
