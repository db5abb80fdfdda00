// SPDX-License-Identifier: MIT
//
// The gateway text format (docs/gateway-file.md): reading and writing.
#pragma once

#include "value/entry.h"

#include <string_view>

namespace sandbox {

// Throws FileError at the first bad line. `file` is the name used in messages.
Entries readGatewayFile(std::string_view text, const std::string &file);

// Whether the first line that is not a comment says that the file was captured from a device.
bool isCapture(std::string_view text);

// What one line says. Throws std::invalid_argument saying what is wrong with it.
Entry gatewayEntry(std::string_view line);

// What stands in the square brackets; "" for nothing.
std::string gatewayAnnotations(const Entry &entry);

// The line, without its end, that reads back as the entry.
std::string gatewayLine(const Entry &entry);

} // namespace sandbox
