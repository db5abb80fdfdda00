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

// What was shown last: the page stays on the screen while it cannot be had.
class Display {
  public:
    explicit Display(const Form &form) : form_(form), terminal_(!form.json && isatty(STDOUT_FILENO) == 1) {}

    void show(const pages::Report &report) {
        lines_ = linesOf(report, form_, -1);
        write(lines_, notesOf(report, form_));
    }

    void show(const pages::Failure &failure) const { write(terminal_ ? lines_ : "", errorLine(failure, form_.json)); }

  private:
    void write(const std::string &lines, const std::string &notes) const {
        std::cout << (terminal_ ? inPlace(lines, notes) : lines);
        flushOutput();
        std::cerr << notes;
    }

    const Form &form_;
    bool terminal_;
    std::string lines_;
};

} // namespace

void watch(const std::function<pages::Report()> &page, const Form &form, std::chrono::seconds interval) {
    const pages::Report first = page();
    TerminalWait wait;
    wait.begin(); // whoever sees the page may end it
    Display display(form);
    display.show(first);
    while (wait.pause(interval)) {
        try {
            display.show(page());
        } catch (const pages::Failure &failure) {
            if (!wait.cancelled()) { // else the key has ended what the page waited for
                display.show(failure);
            }
        }
    }
    if (notedSignal() != SIGINT) {
        throw Interrupted(notedSignal(), "interrupted");
    }
}

} // namespace cli
