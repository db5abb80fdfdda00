// SPDX-License-Identifier: MIT
#include "caltofal/watch.h"

#include "caltofal/exit.h"
#include "caltofal/signals.h"
#include "caltofal/terminal_wait.h"

#include <csignal>
#include <iostream>
#include <unistd.h>

namespace cli {
namespace {

constexpr const char *kHome = "\x1b[H";
constexpr const char *kClearLine = "\x1b[K";
constexpr const char *kClearBelow = "\x1b[J";

// Line by line over what stands there, so that nothing flickers.
std::string inPlace(const std::string &lines) {
    std::string result = kHome;
    for (const char c : lines) {
        result += c == '\n' ? std::string(kClearLine) + c : std::string(1, c);
    }
    return result + kClearBelow;
}

void show(const pages::Report &report, const Form &form) {
    const bool terminal = !form.json && isatty(STDOUT_FILENO) == 1;
    const std::string lines = linesOf(report, form, -1);
    std::cout << (terminal ? inPlace(lines) : lines);
    flushOutput();
    printNotes(report);
}

} // namespace

void watch(const std::function<pages::Report()> &page, const Form &form, std::chrono::seconds interval) {
    show(page(), form);
    TerminalWait wait;
    wait.begin();
    while (wait.pause(interval)) {
        try {
            show(page(), form);
        } catch (const pages::Failure &failure) {
            printError(failure, form.json);
        }
    }
    if (notedSignal() != SIGINT) {
        throw Interrupted(notedSignal(), "interrupted");
    }
}

} // namespace cli
