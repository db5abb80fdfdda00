// SPDX-License-Identifier: MIT
// A failure on standard error.
#pragma once

#include "pages/failure.h"
#include "pages/text.h"

namespace cli {

// {"error": {"code", "exit", "message", "object"}}; code and object are null where there is none.
Json errorJson(const Failure &failure);

void printError(const Failure &failure, bool json);

} // namespace cli
