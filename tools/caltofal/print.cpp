// SPDX-License-Identifier: MIT
#include "caltofal/print.h"

#include "caltofal/columns.h"
#include "caltofal/fold.h"
#include "caltofal/printable.h"
#include "caltofal/render.h"
#include "caltofal/terminal.h"
#include "pages/json.h"
#include "pages/text.h"

#include <cstdlib>
#include <iostream>
#include <sstream>
#include <unistd.h>

namespace cli {

using namespace pages;

namespace {

constexpr int kNoteIndent = 2;

bool colourWanted() {
    const char *noColour = getenv("NO_COLOR");
    const char *terminal = getenv("TERM");
    const bool refused = (noColour && *noColour) || !terminal || std::string_view(terminal) == "dumb";
    return !refused && isatty(STDOUT_FILENO) == 1;
}

// The beginning of a line that has room on the terminal; a chart that wraps cannot be read.
std::string cutTo(std::string line, size_t columns) {
    constexpr unsigned char kMore = 0x80; // in the first two bits: a letter goes on
    while (columns > 0 && displayWidth(line) > columns) {
        while ((static_cast<unsigned char>(line.back()) & 0xc0U) == kMore) {
            line.pop_back();
        }
        line.pop_back();
    }
    return line;
}

std::string chartLines(const std::string &text, size_t columns) {
    std::istringstream lines(text);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        result += cutTo(printable(line), columns) + "\n";
    }
    return result;
}

} // namespace

void flushOutput() {
    if (!std::cout.flush()) {
        throw Failure(Category::Failed, "standard output cannot be written");
    }
}

std::string linesOf(const Report &report, const Form &form, int indent) {
    if (form.json) {
        return toJson(report.json, indent) + "\n";
    }
    if (!form.columns.empty() && !(report.raw.empty() && report.chart.empty())) {
        throw Usage("--columns: this page is no table");
    }
    if (!report.raw.empty()) {
        return report.raw;
    }
    if (!report.chart.empty()) {
        return chartLines(report.chart, screen().columns);
    }
    const Table table = form.columns.empty() ? report.table : withColumns(report.table, form.columns);
    return form.terse ? renderTerse(table) : render(table, {colourWanted(), screen().columns});
}

void print(const Report &report, const Form &form) {
    std::cout << linesOf(report, form, kNoteIndent);
    flushOutput();
    printNotes(report, form);
}

void printNotes(const Report &report, const Form &form) {
    for (const std::string &note : report.notes) {
        std::cerr << "caltofal: " << printable(note) << '\n';
    }
    const bool chosen = form.json || form.terse || !form.columns.empty();
    if (const auto left = chosen ? std::vector<std::string>() : withoutRoom(report.table, {.width = screen().columns});
        !left.empty()) {
        std::cerr << "caltofal: no room for " << joined(left)
                  << ": --columns shows them, and so does a wider terminal\n";
    }
}

void printError(const Failure &failure, bool json) {
    if (json) {
        std::cerr << toJson(errorValue(failure)) << '\n';
    } else {
        std::cerr << "caltofal: " << printable(failure.what()) << '\n';
    }
}

} // namespace cli
