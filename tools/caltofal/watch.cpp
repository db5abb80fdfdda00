// SPDX-License-Identifier: MIT
#include "caltofal/watch.h"

#include "caltofal/exit.h"
#include "caltofal/fold.h"
#include "caltofal/signals.h"
#include "caltofal/terminal.h"
#include "caltofal/terminal_wait.h"

#include <algorithm>
#include <csignal>
#include <iostream>
#include <sstream>
#include <unistd.h>

namespace cli {
namespace {

constexpr const char *kHome = "\x1b[H";
constexpr const char *kClearToEnd = "\x1b[K";
constexpr const char *kClearBelow = "\x1b[J";

// The rows of the screen that notes take below a page.
size_t rowsOf(const std::string &notes) {
    const size_t columns = screen().columns;
    if (columns == 0 || isatty(STDERR_FILENO) != 1) {
        return 0;
    }
    std::istringstream lines(notes);
    size_t rows = 0;
    for (std::string line; std::getline(lines, line);) {
        rows += (std::max<size_t>(displayWidth(line), 1) + columns - 1) / columns;
    }
    return rows;
}

// What is left of the lines on a screen of that many rows, its last one for the cursor; 0: as many as there are. So
// many of the rows are taken, but room for a line stays.
std::string fitting(const std::string &lines, size_t rows, size_t taken) {
    constexpr size_t kLeast = 3; // a line, how many are left out, the cursor
    const size_t room = rows - std::min(taken, std::max(rows, kLeast) - kLeast);
    const auto count = static_cast<size_t>(std::count(lines.begin(), lines.end(), '\n'));
    if (rows < kLeast || count < room) {
        return lines;
    }
    const size_t shown = room - 2;
    size_t end = 0;
    for (size_t line = 0; line < shown; ++line) {
        end = lines.find('\n', end) + 1;
    }
    return lines.substr(0, end) + "(" + std::to_string(count - shown) + " more lines)\n";
}

// Line by line over what stands there, so that nothing flickers.
std::string inPlace(const std::string &lines, const std::string &notes) {
    std::string result = kHome;
    for (const char c : fitting(lines, screen().rows, rowsOf(notes))) {
        result += c == '\n' ? std::string(kClearToEnd) + c : std::string(1, c);
    }
    return result + kClearBelow;
}

void show(const pages::Report &report, const Form &form) {
    const bool terminal = !form.json && isatty(STDOUT_FILENO) == 1;
    const std::string lines = linesOf(report, form, -1);
    const std::string notes = notesOf(report, form);
    std::cout << (terminal ? inPlace(lines, notes) : lines);
    flushOutput();
    std::cerr << notes;
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
