// SPDX-License-Identifier: MIT
// Which objects of an answer were asked for: by filters, by patterns, by level.
#pragma once

#include "pages/layer/query.h"

#include <string>
#include <vector>

namespace pages::objects {

std::string withDot(const std::string &path);

// What stands between the dots.
std::vector<std::string> partsOf(const std::string &path);

bool has(const Object &object, const std::string &parameter);

// The instances of a table whose parameters have those values, with the parameters that `asked` names; with `leaf`
// nothing below them. A flag or a number may be spelled as people do ("1", "TRUE", "07").
std::vector<Object> matching(const Object &asked, const std::vector<Parameter> &where, bool leaf);

// Whether a path has "*" in it, which stands for any one part of a path.
bool isPattern(const Object &asked);

// Throws Failure where nothing matches, but where parameters are asked for by name: the answer may then be empty.
std::vector<Object> matchingPattern(const Object &asked);

// The parameters and, with a dot behind, the objects directly below a path.
std::vector<std::string> directlyBelow(const std::string &path, const std::vector<Object> &answer);

} // namespace pages::objects
