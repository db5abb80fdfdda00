// SPDX-License-Identifier: MIT
// libcal and libhelper in one library, in memory, for measuring: nodes come zeroed from a pool, texts are copied by
// their length, a get finds its answer by path, keeps to the names and filters of the request and links the answer into
// the message with the same functions that build requests. The least that a layer does, so that what lies above it
// shows.
//
// For one thread.
#pragma once

#include "answers.h"

#include <cstdint>
#include <string>

namespace bench {

// Replaces everything that the layer holds.
void holdAnswers(Answers answers);

struct Counts {
    uint64_t calls; // of help_ and cal_ functions
    uint64_t nodes; // allocated, list heads included
};

// Since the start.
Counts platformCounts();

// Appends each call with its texts and numbers to `log`; nullptr ends it. Source lines of allocations do not count.
void recordCalls(std::string *log);

// Takes back the messages that were not released.
void reclaimMessages();

} // namespace bench
