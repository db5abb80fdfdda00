// SPDX-License-Identifier: MIT
// The commands by subject; each group stands in the file of its name.
#pragma once

#include "caltofal/command.h"

namespace cli {

// Shows a page that takes no arguments.
template <auto page>
Show just(const Arguments & /*none*/) {
    return page;
}

std::span<const Command> networkCommands();
std::span<const Command> objectCommands();
std::span<const Command> wifiCommands();
std::span<const Command> meshCommands();
std::span<const Command> captureCommands();

} // namespace cli
