// SPDX-License-Identifier: MIT
//
// Values of a JSON dump that bring their type and access along.
#pragma once

#include "exchange/dump/row.h"
#include "exchange/json_tree.h"

namespace sandbox {

// What a member says of the parameter or object that holds it.
enum class Role { None, Name, Value, Type, Access, Object, Contents, Instance };

// By a member's name: "_value", "dataType", "parameterName" ... Names in capitals are parameters' own.
Role roleOf(std::string_view member);

// The first member with the role; NULL for none.
const JsonNode *memberOf(const JsonNode &node, Role role);

// Whether the node is a value with what belongs to it, or says of itself that it is an object, without contents.
bool isLeaf(const JsonNode &node);

// Sets value, type and access of a row from a scalar or from such a node.
void readLeaf(const JsonNode &node, DumpRow &row);

// The items of an array of scalars, separated by commas, as lists are written in values.
std::string joinedItems(const JsonNode &array);

} // namespace sandbox
