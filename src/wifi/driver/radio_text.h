// SPDX-License-Identifier: MIT
// What the wireless tools print of a radio.
#pragma once

namespace wifi {

// The number after "wiphy" in the text of `iw dev IF info`; -1 when the word is not there.
int parsePhyNumber(const char *text);

// The number's text after "Current Channel=" in a line of `iwlist IF channel`, or nullptr.
const char *findCurrentChannel(const char *line);

} // namespace wifi
