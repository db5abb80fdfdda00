// SPDX-License-Identifier: MIT
// SIGINT, SIGTERM, SIGHUP and SIGQUIT. They end the program with a line and 128 + the signal's number from the start;
// only a command that has something to put in order first (terminal_wait.h) defers them.
#pragma once

#include <chrono>

namespace cli {

// Watches those that the caller does not ignore. The line is JSON where `json`.
void watchSignals(bool json);

// Whether a signal is noted rather than the program's end; answers whether it was before.
bool deferSignals(bool defer);

// The signal that was noted, 0 for none.
int notedSignal();

// Sleeps so long; not, or no longer, where a signal is noted.
void sleepUntilSignal(std::chrono::nanoseconds time);

// Keeps signals for the program that this process becomes, and back.
void holdSignals(bool hold);

} // namespace cli
