// SPDX-License-Identifier: MIT
//
// Gateways as one flat JSON object, {"path": value}. Numbers and flags are read and written as such where that keeps
// the value's text; a value that is not UTF-8 is {"hex": "digits"}. JSON carries values only: types, templates and
// objects without parameters are left out.
#pragma once

#include "value/entry.h"

#include <iosfwd>
#include <string_view>

namespace sandbox {

Entries readJson(std::string_view text, const std::string &file);
void writeJson(const Entries &entries, std::ostream &out);

} // namespace sandbox
