// SPDX-License-Identifier: MIT
#include "caltofal/command_line.h"
#include "caltofal/console_capture.h"
#include "caltofal/device.h"
#include "caltofal/print.h"
#include "caltofal/signals.h"
#include "caltofal/trace.h"
#include "pages/layer/request_log.h"
#include "pages/process/streams.h"
#include "pages/text.h"

#include "caltofal.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <new>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace {

using namespace cli;

constexpr uint16_t kLogToStdout = 2; // of unfaltocalLogType

// A wrong command line is reported in the form that it asks for all the same.
bool asksForJson(int argc, char **argv) {
    return std::any_of(argv, argv + argc, [](const char *word) { return std::string_view(word) == "--json"; });
}

// A device's console keeps its trace, as with every other program there, unless it is to be shown here.
void arrangeTrace(const Options &options) {
    if (options.trace) {
        showTrace();
        unfaltocalLogType |= kLogToStdout;
    }
    if (options.trace || isSandbox()) {
        captureConsole();
    }
}

// A closed stream's number must not go to the next file that is opened. Writing to standard output still fails.
void occupyStreams() {
    for (const auto &[stream, mode] :
         {std::pair{STDIN_FILENO, O_RDONLY}, {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_WRONLY}}) {
        if (fcntl(stream, F_GETFD) < 0) {
            ::open("/dev/null", mode); // takes the lowest free number
        }
    }
}

void runCommand(int argc, char **argv) {
    Options options;
    const Run run = parse(argc, argv, options);
    if (!run) {
        return;
    }
    if (!options.gateway.empty()) {
        setenv("CALTOFAL_GATEWAY", options.gateway.c_str(), 1);
    }
    arrangeTrace(options);
    const StdioCapture capture;
    const Report report = run();
    traceCollect();
    print(report, options.json);
}

} // namespace

int main(int argc, char **argv) {
    occupyStreams();
    watchSignals(asksForJson(argc, argv));
    useUtf8Locale();
    rememberCommandLine(argv, asksForJson(argc, argv));
    const auto failed = [&](const Failure &failure) {
        traceCollect();
        printError(failure, asksForJson(argc, argv));
        return static_cast<int>(failure.exit());
    };
    try {
        runCommand(argc, argv);
        return static_cast<int>(Exit::Done);
    } catch (const Failure &failure) {
        return failed(failure);
    } catch (const std::bad_alloc &) {
        return failed({Exit::Failed, "out of memory"});
    } catch (const std::exception &error) {
        return failed({Exit::Failed, error.what()});
    }
}
