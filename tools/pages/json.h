// SPDX-License-Identifier: MIT
// Values as JSON text, and back. The one place that knows the JSON library.
#pragma once

#include "pages/value.h"

#include <string>
#include <string_view>

namespace pages {

// In one line where `indent` is negative, else with that many blanks a level. A member whose text is no UTF-8 gets a
// sibling "KEY_hex" with its bytes; in the text itself, such bytes are replaced.
std::string toJson(const Value &value, int indent = -1);

// In one line of ASCII: other characters are escaped.
std::string toAsciiJson(const Value &value);

// Throws Usage with what is wrong and where; a member that stands twice is wrong too. `depthMax`: nested deeper, a text
// is refused.
Value fromJson(std::string_view text, int depthMax = 64);

} // namespace pages
