// SPDX-License-Identifier: MIT
// Failures as answers: the exit codes of the command line as statuses of HTTP, in one table.
#pragma once

#include "pages/failure.h"
#include "response.h"

namespace web {

constexpr int kExitNoBox = 77; // the command line's, where a sandbox's device box is missing

Status statusOf(int exit);

// {"error": {"code", "exit", "message", "object"}}, as the command line prints it with --json.
Response errorResponse(const pages::Failure &failure);

} // namespace web
