// SPDX-License-Identifier: MIT
// The verbs of `mesh`; each is defined in the file of its name.
#pragma once

#include "caltofal/noun.h"
#include "pages/text.h"

namespace cli::mesh {

extern const Noun kStatusVerb;
extern const Noun kEnableVerb;
extern const Noun kDisableVerb;
extern const Noun kSyncVerb;
extern const Noun kIpVerb;

struct State {
    bool enabled = false;
    bool master = false;
    int32_t satellites = 0; // connected ones
};

// Asks the gateway and the device's runtime database. Throws Failure.
State state();

} // namespace cli::mesh
