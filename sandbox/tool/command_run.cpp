// SPDX-License-Identifier: MIT
#include "tool/command.h"

#include "device/box/box.h"
#include "device/box/obstacle.h"
#include "exchange/gateway.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace sandbox {
namespace {

struct Options {
    bool check = false;
    bool trace = false;
    std::vector<std::string> shown;
};

void enterBox(Tool &tool, const Options &options, std::vector<std::string> command) {
    try {
        const Location location = tool.location();
        openGateway(location); // made when it is a demo's; refused here, not by each program in the box
        tool.exitCode = box::run({location, std::move(command), options.shown});
    } catch (const box::Obstacle &obstacle) {
        say(std::string("caltofal-sandbox: ") + obstacle.what());
        tool.exitCode = box::kExitNoBox;
    }
}

void run(Tool &tool, const Options &options) {
    if (options.check) {
        enterBox(tool, options, {"/bin/sh", "-c", "exit 0"});
        if (tool.exitCode == kDone) {
            std::cout << "the device box works here\n";
        }
    } else if (tool.words.empty()) {
        throw Failure("run: which command? caltofal-sandbox run -- COMMAND [ARGUMENT...]", kUsage);
    } else {
        if (options.trace) {
            setenv("CALTOFAL_SANDBOX_TRACE", "-", 1);
        }
        enterBox(tool, options, tool.words);
    }
}

void addShown(Command &command, Options &options) {
    command.list("-b,--bind", options.shown, "DIRECTORY", "A directory to show in the box as well, writable");
}

} // namespace

void takeWords(int &argc, char **argv, Tool &tool) {
    using namespace std::string_view_literals;
    char **const end = argv + argc;
    char **const mark = std::find(argv, end, "--"sv);
    if (mark != end && std::find(argv, mark, "run"sv) != mark) {
        tool.words.assign(mark + 1, end);
        argc = static_cast<int>(mark - argv);
    }
}

void addRun(Command &root, Tool &tool) {
    auto options = makeOptions<Options>();
    Command command = root.add("run", "Run a program where the device's paths, tools and daemons are");
    command.flag("--check", options->check, "Only tell whether it can be done here");
    command.flag("--trace", options->trace, "Show each message to the configuration layer on standard error");
    addShown(command, *options);
    command.footer(R"(Usage: caltofal-sandbox run [-g NAME] [-b DIRECTORY]... -- COMMAND [ARGUMENT...]

Examples:
  caltofal-sandbox run -- caltofal mode
  caltofal-sandbox run -g mesh -- sh -c 'gddbc -i -g /runtime/singlesignoninfo/livingslave/ishasrptslave'

The exit code is the command's; 77 where there can be no box.)");
    command.runs([&tool, options] { run(tool, *options); });
}

void addShell(Command &root, Tool &tool) {
    auto options = makeOptions<Options>();
    Command command = root.add("shell", "Open the device's shell");
    addShown(command, *options);
    command.runs([&tool, options] {
        setenv("PS1", (tool.location().name + R"(:\w\$ )").c_str(), 1);
        enterBox(tool, *options, {"/bin/sh"});
    });
}

} // namespace sandbox
