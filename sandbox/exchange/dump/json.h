// SPDX-License-Identifier: MIT
//
// Device exports as JSON: lists of parameters, flat and nested objects, what an ACS keeps, answers of agents, the
// command line's own output; wrapped in whatever is around them.
#pragma once

#include "exchange/dump/row.h"
#include "exchange/json_tree.h"

namespace sandbox {

// `values` as parseJson() reads them.
Dump readJsonDump(const std::vector<JsonNode> &values);

} // namespace sandbox
