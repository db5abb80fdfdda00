// SPDX-License-Identifier: MIT
// SIGINT, SIGTERM, SIGHUP and SIGQUIT. They end the program with a line and 128 + the signal's number from the start;
// only a command that has something to put in order first (terminal_wait.h) defers them.
#pragma once

namespace cli {

// Watches those that the caller does not ignore. The line is JSON where `json`.
void watchSignals(bool json);

// Whether a signal is noted rather than the program's end.
void deferSignals(bool defer);

// The signal that was noted, 0 for none.
int notedSignal();

// Keeps signals for the program that this process becomes, and back.
void holdSignals(bool hold);

} // namespace cli
