// SPDX-License-Identifier: MIT
// Answers on standard output, words on standard error.
#pragma once

#include "pages/failure.h"
#include "pages/report.h"

#include <string>
#include <vector>

namespace cli {

// How an answer is printed.
struct Form {
    bool json = false;
    bool terse = false;                    // for scripts: no headings, tabs between the cells
    std::vector<std::string> columns = {}; // by heading, or the beginning of one; none: all
};

// Throws Failure when standard output did not take all of it.
void flushOutput();

// The data as lines; JSON with that indentation. Throws Usage for a column that is not there.
std::string linesOf(const pages::Report &report, const Form &form, int indent);

// The data, then the notes. Throws like linesOf() and flushOutput().
void print(const pages::Report &report, const Form &form);

// Lines for standard error, also of columns for which the terminal has no room.
std::string notesOf(const pages::Report &report, const Form &form);

// The line for standard error that says what failed.
std::string errorLine(const pages::Failure &failure, bool json);
void printError(const pages::Failure &failure, bool json);

} // namespace cli
