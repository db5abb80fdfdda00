// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace pages::mesh {

struct State {
    bool enabled = false;
    bool master = false;
    int32_t satellites = 0; // connected ones
};

// Asks the gateway and the device's runtime database. Throws Failure.
State state();

} // namespace pages::mesh
