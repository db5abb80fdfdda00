// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/import_report.h"
#include "store/database.h"
#include "value/entry.h"

namespace sandbox {

// Merges what a file says into a store, within the caller's write transaction: what is not said stays as it is, and
// new objects are made of their templates. Throws FileError at the first entry that can not be taken. With a report
// every value is taken: one that does not fit its type makes the parameter a text, which is counted.
void importEntries(Database &database, const Entries &entries, const std::string &file, ImportReport *report = nullptr);

// Empties a store of its model; faults stay.
void clearModel(Database &database);

} // namespace sandbox
