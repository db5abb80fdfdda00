// SPDX-License-Identifier: MIT
#include "caltofal/watch.h"

#include "caltofal/exit.h"
#include "caltofal/signals.h"
#include "caltofal/terminal.h"
#include "caltofal/terminal_wait.h"

#include <algorithm>
#include <csignal>
#include <iostream>
#include <unistd.h>

namespace cli {
namespace {

constexpr const char *kHome = "\x1b[H";
constexpr const char *kClearToEnd = "\x1b[K";
constexpr const char *kClearBelow = "\x1b[J";

// What is left of the lines on a screen of that many rows, its last one for the cursor; 0: as many as there are.
std::string fitting(const std::string &lines, size_t rows) {
    const auto count = static_cast<size_t>(std::count(lines.begin(), lines.end(), '\n'));
    if (rows < 3 || count < rows) {
        return lines;
    }
    const size_t shown = rows - 2;
    size_t end = 0;
    for (size_t line = 0; line < shown; ++line) {
        end = lines.find('\n', end) + 1;
    }
    return lines.substr(0, end) + "(" + std::to_string(count - shown) + " more lines)\n";
}

// Line by line over what stands there, so that nothing flickers.
std::string inPlace(const std::string &lines) {
    std::string result = kHome;
    for (const char c : fitting(lines, screen().rows)) {
        result += c == '\n' ? std::string(kClearToEnd) + c : std::string(1, c);
    }
    return result + kClearBelow;
}

void show(const pages::Report &report, const Form &form) {
    const bool terminal = !form.json && isatty(STDOUT_FILENO) == 1;
    const std::string lines = linesOf(report, form, -1);
    std::cout << (terminal ? inPlace(lines) : lines);
    flushOutput();
    printNotes(report, form);
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
