// SPDX-License-Identifier: MIT
// "NAME=VALUE" as it is typed, and slips in it. The value may be a secret that the tool does not know for one, so that
// no message shows what stands behind a name.
#pragma once

#include "pages/layer/query.h"

#include <string>
#include <vector>

namespace cli {

// Whether a word is an object's path, or begins with one.
bool beginsObject(const std::string &word);

// "KeyPassphrase=..." of a word with "=", any other word as it is.
std::string withoutValue(const std::string &word);

// What is wrong with a word that has "=", or ":" in its place, where none is taken, and how to set the parameter.
// `before` are the words before this one; `command` is the noun, and the verb where it has some, "" for none.
std::string takesNoValue(const std::string &slip, const std::vector<std::string> &before, const std::string &command);

} // namespace cli
