// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace sandbox {

// Strict JSON of what was written without care, on the same lines. Bytes that are not UTF-8 stand in it as code
// points that bytesRestored() turns back.
std::string repairedJson(std::string_view text);

std::string bytesRestored(std::string text);

} // namespace sandbox
