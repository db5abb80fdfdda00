// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"
#include "value/entry.h"

namespace sandbox {

// Which model an export shows.
enum class View {
    Both,    // stored values, with the running ones where they differ
    Stored,  // as after the next boot
    Running, // as gets answer
};

// Which parameters an export gives a type, an access and a default.
enum class Detail {
    Needed, // those that differ from what their templates say
    All,
};

// Everything at and below the object `key` (empty: all), templates first, in model order. Importing a View::Both of
// everything into an empty store makes the same store.
Entries exportEntries(Database &database, const std::string &key, View view, Detail detail = Detail::Needed);

} // namespace sandbox
