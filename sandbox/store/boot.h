// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"

#include <optional>
#include <string>
#include <vector>

namespace sandbox {

// One thing that differs between two models.
struct Difference {
    enum class Kind { Added, Removed, Changed };

    Kind kind;
    std::string path;                         // of a parameter, or of an object that comes or goes as a whole
    std::optional<std::string> before, after; // values of a parameter; empty where it does not exist
};

// What a boot would change: the stored model against the running one.
std::vector<Difference> pendingDifferences(Database &database);

// Makes the running model follow the stored one, within the caller's write transaction.
void boot(Database &database);

} // namespace sandbox
