// SPDX-License-Identifier: MIT
// The radio behind a network interface.
#pragma once

namespace wifi {

// The number behind "wiphy" in the text of `iw dev IF info`; -1 when the word is not there.
int parsePhyNumber(const char *text);

} // namespace wifi
