// SPDX-License-Identifier: MIT
//
// Gateways as one JSON object: {"path": value}, objects without parameters as {"path.": {}}, and a last member
// "definitions", {"path": annotations}, with what a gateway file has in square brackets. Numbers and flags are written
// as such where that keeps the value's text; a value that is not UTF-8 is {"hex": "digits"}.
#pragma once

#include "exchange/json_tree.h"
#include "value/entry.h"

#include <iosfwd>

namespace sandbox {

// By the member "definitions".
bool isOwnJson(const std::vector<JsonNode> &values);

// Throws FileError. `file` is the name used in messages.
Entries readJson(const std::vector<JsonNode> &values, const std::string &file);
void writeJson(const Entries &entries, std::ostream &out);

} // namespace sandbox
