// SPDX-License-Identifier: MIT
//
// Recordings of a captured gateway (store/recording.h), laid out for the device's programs.
#pragma once

#include "store/database.h"

#include <filesystem>

namespace device {

// Where the box has them.
constexpr const char *kRecorded = "/run/recorded";

// files/PATH for each file; answers/COMMAND with ':' for '/' and '+' for ' ', and COMMAND.code with the exit code.
void layOut(sandbox::Database &database, const std::filesystem::path &directory);

// A file's recording, which may not be there.
std::filesystem::path recordingOf(const std::filesystem::path &file);

// Whether only what was recorded is to be shown: CALTOFAL_BOX_RECORDED_ONLY.
bool isRecordedOnly();

} // namespace device
