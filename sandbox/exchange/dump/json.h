// SPDX-License-Identifier: MIT
//
// Device exports as JSON: lists of parameters, flat and nested objects, what an ACS keeps, answers of agents, the
// command line's own output; wrapped in whatever is around them.
#pragma once

#include "exchange/dump/row.h"
#include "exchange/json_tree.h"

namespace sandbox {

// `values` as parseJson() reads them. Of several devices `device` is taken, by the name that the ACS gives it or else
// by its number; "" where the file should hold one alone. Throws FileError with their names.
Dump readJsonDump(const std::vector<JsonNode> &values, const std::string &file, const std::string &device);

} // namespace sandbox
