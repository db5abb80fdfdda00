// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace pages {

// Type, access and default of a parameter, "OBJECT.NAME", as a gateway file has them in square brackets. "" where the
// layer cannot tell: a device's has no way to.
std::string definitionOf(const std::string &parameter);

} // namespace pages
