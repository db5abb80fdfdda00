// SPDX-License-Identifier: MIT
// Signal strengths as tables show them.
#pragma once

#include "pages/page.h"

namespace pages::wifi {

// "-52" with 0 to 4 bars; "-" where `dbm` is null.
Cell signalCell(const Value &dbm);

} // namespace pages::wifi
