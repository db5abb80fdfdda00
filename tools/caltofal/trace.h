// SPDX-License-Identifier: MIT
// What the library writes besides its results, collected line by line and shown on standard error with --trace.
#pragma once

namespace cli {

// From now on complete lines are shown as they come, each with its source; with their secrets only where `secrets`.
void showTrace(bool secrets);

// What the library writes to the console goes into a private memory file, and from there to the trace.
void captureConsole();

// Fetches what was written to the console since the last call.
void collectConsole();

} // namespace cli
