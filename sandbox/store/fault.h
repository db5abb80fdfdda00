// SPDX-License-Identifier: MIT
//
// Faults that a test orders: requests that fail or are answered late.
#pragma once

#include "store/database.h"

#include <optional>
#include <string>
#include <vector>

namespace sandbox {

struct Fault {
    int64_t id = 0;
    std::string object;    // key of the object that is hit, with everything below it; "" any
    std::string operation; // "get", "set"; "" any
    std::optional<int> code;
    int lateMs = 0;
    std::optional<int64_t> remaining; // which of the next matching requests is hit; empty: every one
};

int64_t addFault(Database &database, const Fault &fault);
std::vector<Fault> listFaults(Database &database);
// Whether there was such a fault.
bool clearFault(Database &database, int64_t id);
void clearFaults(Database &database);

// What the faults do to one message.
struct FaultVerdict {
    std::optional<Fault> failing; // the first with a code that hits
    int lateMs = 0;               // of all that hit
};

// Counts a message against the faults and takes away those that are used up, in a transaction of its own. Who
// may only read is hit by faults of every request, and counts for none. `keys` are
// the objects that the message names.
FaultVerdict consumeFaults(Database &database, const std::string &operation, const std::vector<std::string> &keys);

} // namespace sandbox
