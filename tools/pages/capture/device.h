// SPDX-License-Identifier: MIT
// What a device holds beside its model: the driver's files, work files, and what its tools answer.
#pragma once

#include "pages/layer/query.h"

#include <string>
#include <vector>

namespace pages::capture {

struct Recordings {
    std::string lines; // of the gateway file
    size_t files = 0;
    size_t answers = 0;
};

// Records what the library reads: `model` tells the interfaces and the addresses that it would ask for.
Recordings recordDevice(const std::vector<Object> &model, bool secrets);

} // namespace pages::capture
