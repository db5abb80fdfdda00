// SPDX-License-Identifier: MIT
// What stands behind each resource: the pages.
#pragma once

#include "call.h"
#include "jobs.h"
#include "pages/report.h"

namespace web {

// Answers a GET, in the words of the command line's --json. Throws Failure.
pages::Report read(const Call &call);

// What a PATCH wrote, or with dry_run would write. Throws Failure.
pages::Report change(const Call &call);

// The work of a POST, its arguments checked. Throws Failure.
Jobs::Task taskOf(const Call &call);

} // namespace web
