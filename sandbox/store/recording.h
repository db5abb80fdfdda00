// SPDX-License-Identifier: MIT
//
// What a device's own files and tools said when a gateway was captured; the device box plays it back.
#pragma once

#include "store/database.h"

#include <optional>
#include <string>
#include <vector>

namespace sandbox {

struct Recording {
    std::string name;            // a file's path, or a command as it was run
    std::optional<int> exitCode; // of a command; empty: a file
    std::string content;         // the file's, or the command's standard output
};

// Within the caller's write transaction; of two with one name the later holds.
void keepRecording(Database &database, const Recording &recording);

// By name.
std::vector<Recording> recordings(Database &database);

void forgetRecordings(Database &database);

} // namespace sandbox
