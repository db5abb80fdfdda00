// SPDX-License-Identifier: MIT
//
// What is known of parameters without a file's help: what the demo gateways declare. They follow the public model.
#pragma once

#include "value/value_type.h"

#include <optional>
#include <string>
#include <string_view>

namespace sandbox {

struct KnownParameter {
    ValueType type;
    bool writable = false;
    std::string fallback; // the default value
};

// Of a parameter's pattern (patternOf()); NULL when nothing is known.
const KnownParameter *knownParameter(std::string_view pattern);

// Whether a set may add and delete instances of a table, "Device.NAT.PortMapping.{i}."; empty when it is not known.
std::optional<bool> knownTable(std::string_view pattern);

// Whether the name is that of an object directly below Device.
bool isKnownTop(std::string_view name);

} // namespace sandbox
