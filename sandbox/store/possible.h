// SPDX-License-Identifier: MIT
//
// Settings held against what their gateway says is possible: a channel against the radio's PossibleChannels and so on.
#pragma once

#include "store/database.h"
#include "value/value_type.h"

#include <string>
#include <string_view>

namespace sandbox {

// Throws a Refusal with CALTOFAL_OUT_OF_RANGE, and the list of what is possible, for a setting that the object `key`
// says it cannot have. Where the gateway has no such list, and `type` no range, the standard's range counts. A text
// that is no address where the standard has one is CALTOFAL_WRONG_TYPE.
void refuseImpossible(Database &database, const std::string &key, std::string_view name, const ValueType &type,
                      const std::string &value);

} // namespace sandbox
