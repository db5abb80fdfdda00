// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace sandbox {

// A file's bytes as the readers take them: without a byte order mark, UTF-16 turned into UTF-8, lines that end in CR
// alone ended with LF. Other bytes stay as they are, be they UTF-8 or not.
std::string plainText(std::string bytes);

// One code point (not a surrogate) in UTF-8, appended.
void appendUtf8(std::string &out, char32_t code);

} // namespace sandbox
