// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace sandbox {

// Strict JSON of what was written without care, on the same lines. Bytes that are not UTF-8 stand in it as code
// points that bytesRestored() turns back.
std::string repairedJson(std::string_view text);

// Whether the text was a word like NaN, which stood for a number; takes the mark off it.
bool takeNumberMark(std::string &text);

std::string bytesRestored(std::string text);

} // namespace sandbox
