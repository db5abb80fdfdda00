// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace test {

// The text with every match of the POSIX extended expression replaced. What stands in a first group, with which a match
// then begins, is kept. (<regex> takes seconds of each file that includes it.)
std::string replaced(const std::string &text, const char *expression, const std::string &replacement);

} // namespace test
