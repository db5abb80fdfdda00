// SPDX-License-Identifier: MIT
// A device as a file, and back. The file is a gateway file (docs/gateway-file.md) that says it is a capture.
#pragma once

#include "pages/layer/query.h"
#include "pages/report.h"

#include <string>
#include <vector>

namespace pages::capture {

struct Wanted {
    std::vector<std::string> objects = {}; // or parameters, "OBJECT.PARAM"; none: the whole model
    bool driver = false;                   // also the device's own files, and what its tools answer
    bool secrets = false;                  // pass phrases, passwords and keys as they are
};

// The file is the raw text. Throws Failure.
Report take(const Wanted &wanted);

// Writes the values of a capture that differ from what the gateway has, in one message. What it does not have, what
// cannot be set, and secrets that were replaced are named and skipped. With `storeOnly` values that are the same are
// written too, where access is known, as what is stored cannot be read. `dryRun`: tells so, and writes nothing. `file`
// names the text in errors.
Report apply(const std::string &text, const std::string &file, bool dryRun, bool storeOnly);

} // namespace pages::capture
