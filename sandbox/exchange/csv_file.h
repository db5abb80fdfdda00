// SPDX-License-Identifier: MIT
//
// Gateways as CSV (RFC 4180): a header that names the columns path and value, and where wanted type, access, default,
// running and object, in any order.
#pragma once

#include "value/entry.h"

#include <iosfwd>
#include <string_view>

namespace sandbox {

// Whether the text begins with such a header.
bool isOwnCsv(std::string_view text);

Entries readCsv(std::string_view text, const std::string &file);
void writeCsv(const Entries &entries, std::ostream &out);

} // namespace sandbox
