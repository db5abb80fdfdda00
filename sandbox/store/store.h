// SPDX-License-Identifier: MIT
//
// A gateway's store as a file: opening, making, removing.
#pragma once

#include "database.h"
#include "entry.h"
#include "location.h"

#include <memory>
#include <vector>

namespace sandbox {

// Opens a gateway. One that does not exist is made from the demo of its name. Throws a Refusal with
// CALTOFAL_NO_GATEWAY when there is none, or when the name is no gateway's.
std::unique_ptr<Database> openStore(const Location &location);

// Whether the gateway exists. Throws a Refusal when it can not be told.
bool storeExists(const Location &location);

// Makes a gateway of a file's entries. It appears whole or not at all. False when it exists already, be it that
// another process made it in the meantime. Throws FileError for a bad entry.
bool createStore(const Location &location, const Entries &entries, const std::string &file);

// Whether there was such a gateway.
bool removeStore(const Location &location);

// The names of the gateways of a directory, sorted.
std::vector<std::string> storeNames(const std::string &directory);

} // namespace sandbox
