// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/dump/row.h"
#include "value/entry.h"

namespace sandbox {

// A capture's objects and values as rows: a device tells no types, and no tables, so that both are found as in the
// dumps of others. Recordings are not among them.
Dump captureDump(const Entries &entries);

} // namespace sandbox
