// SPDX-License-Identifier: MIT
// Changes that hold only for what their client has read.
#pragma once

#include "call.h"
#include "request.h"

namespace web {

// Throws Refusal (412) for a PATCH with If-Match when none of its tags is that of the resource's GET by now; for
// objects, of the GET with the "path" and "leaf" of the change's query, without a path those of its body. 400 for a
// header that is no list of tags, and for such a query without the header; what the GET fails with.
void checkPrecondition(const Call &call, const Request &request);

} // namespace web
