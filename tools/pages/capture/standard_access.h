// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace pages::capture {

// Whether TR-181 lets nobody set the parameter. False for what is none of the standard's.
bool isReadOnlyByStandard(std::string_view object, std::string_view name);

} // namespace pages::capture
