// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "caltofal/command_line.h"
#include "caltofal/device.h"
#include "caltofal/exit.h"
#include "caltofal/print.h"
#include "caltofal/printable.h"
#include "caltofal/signals.h"
#include "caltofal/trace.h"
#include "caltofal/typed_words.h"
#include "caltofal/watch.h"
#include "help/typed_values.h"
#include "pages/layer/call.h"
#include "pages/layer/request_log.h"
#include "pages/process/streams.h"
#include "pages/secret.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <new>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace {

using namespace cli;
using pages::Category, pages::Failure;

constexpr uint16_t kLogToStdout = 2; // of unfaltocalLogType

// A wrong command line is reported in the form that it asks for all the same.
bool asksForJson(int argc, char **argv) {
    return std::any_of(argv, argv + argc, [](const std::string_view word) { return word == "--json" || word == "-j"; });
}

// A device's console keeps its trace, as with every other program there, unless it is to be shown here.
void arrangeTrace(const Options &options) {
    if (options.trace) {
        showTrace(options.secrets);
        unfaltocalLogType |= kLogToStdout;
    }
    if (options.trace || pages::isSandbox()) {
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

// What the command's page says. A signal ends its waiting.
pages::Report answerOf(const Task &task) {
    try {
        const pages::HiddenFailures hidden;
        pages::Report report = task.show();
        report.notes.insert(report.notes.end(), hidden.notes().begin(), hidden.notes().end());
        return report;
    } catch (const pages::Cancelled &cancelled) {
        throw Interrupted(notedSignal(), cancelled.what());
    }
}

void runCommand(const std::vector<std::string> &words) {
    Options options;
    const Task task = parse(parserWords(words), options);
    if (!task.command) {
        return;
    }
    if (!options.gateway.empty()) {
        setenv("CALTOFAL_GATEWAY", options.gateway.c_str(), 1);
    }
    arrangeTrace(options);
    const pages::StreamCapture capture;
    const pages::ShowSecrets secrets(options.secrets);
    const auto answer = [&] {
        pages::Report report = answerOf(task);
        collectConsole();
        return report;
    };
    if ((task.command->traits & kDevice) != 0) {
        needDevice();
    }
    namingCommand(task, [&] {
        if (options.watch > 0) {
            watch(answer, options.form, std::chrono::seconds(options.watch));
        } else {
            print(answer(), options.form);
        }
    });
}

} // namespace

int main(int argc, char **argv) {
    occupyStreams();
    help::noteTypedWords(argc, argv);
    watchSignals(asksForJson(argc, argv));
    useUtf8Locale();
    rememberCommandLine(argv, asksForJson(argc, argv));
    const auto failed = [&](const Failure &failure) {
        collectConsole();
        printError(failure, asksForJson(argc, argv));
        return static_cast<int>(failure.category());
    };
    try {
        runCommand({argv + std::min(argc, 1), argv + argc});
        return kDone;
    } catch (const Failure &failure) {
        return failed(failure);
    } catch (const std::bad_alloc &) {
        return failed({Category::Failed, "out of memory"});
    } catch (const std::exception &error) {
        return failed({Category::Failed, error.what()});
    }
}
