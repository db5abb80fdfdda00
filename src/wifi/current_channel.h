// SPDX-License-Identifier: MIT
// The channel in use.
#pragma once

namespace wifi {

// Stores the number behind "Current Channel=" of a line of `iwlist IF channel`; without it `channel` is untouched.
void takeCurrentChannel(const char *line, int &channel);

} // namespace wifi
