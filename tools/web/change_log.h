// SPDX-License-Identifier: MIT
// A line of the log for each change that was asked for: when, from which address, what, and how it ended.
#pragma once

#include "call.h"
#include "request.h"
#include "status.h"

namespace web {

// What a change is about is the resource and the names of the parameters, never a value, which may be a secret. Safe
// for many threads.
void logChange(const Call &call, const Request &request, Status status);

} // namespace web
