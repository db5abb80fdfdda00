// SPDX-License-Identifier: MIT
// The words of a command line as people type them, made into those that the parser knows.
#pragma once

#include <string>
#include <vector>

namespace cli {

// Nouns and verbs by their beginnings, where only one begins so; "help NOUN" and "NOUN help" as "NOUN --help"; options
// whose value may be left out with one. The program's own name is not among the words.
std::vector<std::string> parserWords(std::vector<std::string> words);

// What the parser takes for `--watch` and `--mode-section` without a value.
inline constexpr const char *kDefaultWatch = "default";
inline constexpr const char *kAllModes = "?";

} // namespace cli
