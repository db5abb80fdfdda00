// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"
#include "store/location.h"

namespace sandbox {

// How a store that is there can be opened by this user: one of another user, or on a disk that is mounted for reading,
// is read all the same. Throws a Refusal with CALTOFAL_STORE_FAILED that names the file when it cannot even be read.
Database::Open howToOpen(const Location &location);

} // namespace sandbox
