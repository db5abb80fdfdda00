// SPDX-License-Identifier: MIT
// Where the device's own tools and files are.
#pragma once

namespace cli {

// What to start anew in the box; `argv` stays valid until the process ends.
void rememberCommandLine(char **argv, bool json);

// For commands that need the device's shell, tools or files. On a device, and in the sandbox's box, it returns at once.
// Elsewhere in the sandbox it does not return: the process becomes caltofal-sandbox, which runs the same command line
// in the gateway's box. Throws Failure where that is not possible. To be called before anything is asked.
void needDevice();

} // namespace cli
