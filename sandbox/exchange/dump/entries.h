// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/dump/row.h"
#include "value/entry.h"

namespace sandbox {

// What a dump says, as entries that an import with a report takes: paths that the model can have, one entry for each;
// types, access and defaults from the file, else as far as they are known, else by the value; a table for every
// counter. What is left out is counted in the dump's report.
Entries entriesOf(Dump &dump);

} // namespace sandbox
