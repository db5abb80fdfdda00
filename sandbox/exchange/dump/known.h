// SPDX-License-Identifier: MIT
//
// What is known of parameters without a file's help: what the demo gateways declare. They follow the public model.
#pragma once

#include "store/definition.h"
#include "value/entry.h"

#include <optional>
#include <string_view>

namespace sandbox {

// Of a parameter's pattern (patternOf()); NULL when nothing is known.
const Definition *knownParameter(std::string_view pattern);

// Whether a set may add and delete instances of a table, "Device.NAT.PortMapping.{i}."; empty when it is not known.
std::optional<bool> knownTable(std::string_view pattern);

// What the instances of a table are made of where nothing tells but what is known: entries of `table`, which has the
// known table's place but may have instance numbers in it; guesses all of them.
Entries knownInstances(std::string_view table);

// Whether the name is that of an object directly below Device.
bool isKnownTop(std::string_view name);

} // namespace sandbox
