// SPDX-License-Identifier: MIT
#pragma once

#include "value/value_type.h"

namespace sandbox {

// The value as it is stored, for instance "true" for a boolean "1". Throws a Refusal that names the parameter and the
// value when the type does not take it or a message could not carry it.
std::string acceptedValue(const ValueType &type, std::string_view parameter, std::string value);

} // namespace sandbox
