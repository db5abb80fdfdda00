// SPDX-License-Identifier: MIT
#pragma once

#include "caltofal.h"
#include "store/database.h"

#include <string>
#include <utility>
#include <vector>

namespace sandbox {

// What one object of a set message changes.
struct SetRequest {
    // The values are those of the message.
    enum class Operation { Add = CALTOFAL_SUBOPER_ADD, Delete = CALTOFAL_SUBOPER_DELETE, Set = CALTOFAL_SUBOPER_SET };

    Operation operation = Operation::Set;
    std::string path;
    std::vector<std::pair<std::string, std::string>> values; // by parameter name
    std::string added;                                       // out: path of the instance that an Add made
};

// Carries the requests out in order, within the caller's write transaction. `layers` is kEverywhere, or kStored for a
// change that is stored without being applied; the change sees the model that it changes. Throws a Refusal.
void applyRequests(Database &database, std::vector<SetRequest> &requests, int layers);

} // namespace sandbox
