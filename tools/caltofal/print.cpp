// SPDX-License-Identifier: MIT
#include "caltofal/print.h"

#include "caltofal/columns.h"
#include "caltofal/fold.h"
#include "caltofal/printable.h"
#include "caltofal/render.h"
#include "caltofal/terminal.h"
#include "help/typed_values.h"
#include "pages/json.h"
#include "pages/text.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace cli {

using namespace pages;

namespace {

constexpr int kJsonIndent = 2;
constexpr const char *kProgram = "caltofal: ";

bool colourWanted() {
    const char *noColour = getenv("NO_COLOR");
    const char *terminal = getenv("TERM");
    const bool refused = (noColour && *noColour) || !terminal || std::string_view(terminal) == "dumb";
    return !refused && isatty(STDOUT_FILENO) == 1;
}

// The beginning of a text that has room in so many columns.
std::string cutTo(std::string text, size_t columns) {
    constexpr unsigned char kMore = 0x80; // in the first two bits: a letter goes on
    while (displayWidth(text) > columns) {
        while ((static_cast<unsigned char>(text.back()) & 0xc0U) == kMore) {
            text.pop_back();
        }
        text.pop_back();
    }
    return text;
}

// A chart that wraps cannot be read: its lines end where the terminal does, with dots where a name is cut. A name
// without room is left out.
std::string fitted(const ChartLine &line, size_t columns) {
    const std::string name = line.name.empty() ? "" : " " + printable(line.name);
    if (columns == 0 || displayWidth(line.drawing + name) <= columns) {
        return line.drawing + name;
    }
    const std::string dots = "...";
    const size_t room = columns - std::min(columns, displayWidth(line.drawing));
    const std::string cutName = room > dots.size() + 1 ? cutTo(name, room - dots.size()) + dots : "";
    return cutTo(line.drawing, columns) + cutName;
}

std::string chartLines(const std::vector<ChartLine> &chart, size_t columns) {
    std::string result;
    for (const ChartLine &line : chart) {
        result += fitted(line, columns) + "\n";
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
    if (!report.raw.empty() && (!form.terse || report.table.forScripts.empty())) {
        return report.raw;
    }
    if (form.terse && !report.chart.empty()) {
        throw Usage("--terse: a chart is for people; without --chart the networks are a table");
    }
    if (!report.chart.empty()) {
        return chartLines(report.chart, screen().columns);
    }
    const Table table = form.columns.empty() ? report.table : withColumns(report.table, form.columns);
    return form.terse ? renderTerse(table) : render(table, {colourWanted(), screen().columns});
}

void print(const Report &report, const Form &form) {
    std::cout << linesOf(report, form, kJsonIndent);
    flushOutput();
    std::cerr << notesOf(report, form);
}

std::string notesOf(const Report &report, const Form &form) {
    std::vector<std::string> notes = report.notes;
    const bool chosen = form.json || form.terse || !form.columns.empty();
    if (const auto left = chosen ? std::vector<std::string>() : withoutRoom(report.table, {.width = screen().columns});
        !left.empty()) {
        notes.push_back("no room for " + joined(left) + ": --columns shows them, and so does a wider terminal");
    }
    std::string lines;
    for (const std::string &note : notes) {
        lines += foldedText(kProgram + printable(note), screen(STDERR_FILENO).columns) + "\n";
    }
    return lines;
}

std::string errorLine(const Failure &failure, bool json) {
    const Failure shown(failure.category(), help::withoutTypedValues(failure.what()),
                        help::withoutTypedValues(failure.object()), failure.code());
    return (json ? toJson(errorValue(shown)) : kProgram + printable(shown.what())) + "\n";
}

void printError(const Failure &failure, bool json) {
    std::cerr << errorLine(failure, json);
}

} // namespace cli
