// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"

#include <string>

namespace sandbox {

// What a gateway of another maker lacks that the library's pages read, as one clause: "this gateway's model is ...".
// "" for a gateway like those that the library is made for, and for one without any objects.
std::string natureOf(Database &database);

// "PATH: no such object", and what the gateway is where that explains it.
std::string noSuchObject(Database &database, const std::string &path);

} // namespace sandbox
