// SPDX-License-Identifier: MIT
// What somebody may have meant.
#pragma once

#include <string>
#include <vector>

namespace help {

// The words that begin with one or differ from it in a few letters, the nearest first; three at most.
std::vector<std::string> similar(const std::string &word, const std::vector<std::string> &known);

// " (did you mean A or B?)", "" where nothing is near.
std::string didYouMean(const std::string &word, const std::vector<std::string> &known);

} // namespace help
