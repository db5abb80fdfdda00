// SPDX-License-Identifier: MIT
// A line on standard error for each change that was asked for: when, from which address, what, and how it ended.
#pragma once

#include "call.h"
#include "request.h"
#include "status.h"

#include <string>

namespace web {

// What a change is about: the resource and the names of the parameters, never a value, which may be a secret.
std::string changeText(const Call &call, const Request &request);

// Writes the line at once, in one piece. Safe for many threads.
void logChange(const std::string &text, const Request &request, Status status);

} // namespace web
