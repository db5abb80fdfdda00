// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"

#include <string_view>

namespace sandbox {

// Whether an instance of the table has a parameter of that name.
bool isParameterOfInstances(Database &database, int64_t table, std::string_view name);

// Whether the gateway has, or its tables can have, a parameter that a message names: the object's own, of a table one
// of its instances', also where the instance is not there.
bool isKnownParameter(Database &database, std::string_view path, std::string_view name);

} // namespace sandbox
