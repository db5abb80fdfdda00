// SPDX-License-Identifier: MIT
// Answers on standard output, words on standard error.
#pragma once

#include "pages/failure.h"
#include "pages/report.h"

namespace cli {

// Throws Failure when standard output did not take all of it.
void flushOutput();

// The data, then the notes. Throws like flushOutput().
void print(const pages::Report &report, bool json);

void printError(const pages::Failure &failure, bool json);

} // namespace cli
