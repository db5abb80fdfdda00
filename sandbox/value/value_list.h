// SPDX-License-Identifier: MIT
//
// Lists within a value: "a, b", and of numbers also "1-11, 13".
#pragma once

#include <string_view>
#include <vector>

namespace sandbox {

// The parts of a list, without the blanks around them; empty parts are left out.
std::vector<std::string_view> listItems(std::string_view list);

// Whether one of the parts is the value, or a range of numbers that it lies in.
bool listAllows(std::string_view list, std::string_view value);

// The channels of a list. A range that begins beyond 2.4 GHz has every fourth number, as neighbouring channels are
// counted there: "36-48" is 36, 40, 44 and 48.
std::vector<int> channelsOf(std::string_view list);

} // namespace sandbox
