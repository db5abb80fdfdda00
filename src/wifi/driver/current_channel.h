// SPDX-License-Identifier: MIT
// The channel in use.
#pragma once

namespace wifi {

// The number's text behind "Current Channel=" in a line of `iwlist IF channel`, or nullptr.
const char *findCurrentChannel(const char *line);

} // namespace wifi
