// SPDX-License-Identifier: MIT
//
// Changes that a device makes to its own model, read-only parameters included.
#pragma once

#include "store/database.h"

#include <string>

namespace device {

// Sets a parameter, stored and running. False when the gateway has none of that path. Throws a sandbox::Refusal for a
// value that its type does not take.
bool setParameter(sandbox::Database &database, const std::string &path, const std::string &value);

// Makes a station associated with an access point until the next boot, unless it is already. False when there is no
// such access point, or it has no table of stations.
bool joinStation(sandbox::Database &database, const std::string &accessPoint, const std::string &mac);

} // namespace device
