// SPDX-License-Identifier: MIT
// The target of a request taken apart: "/api/v1/wifi/radios/1?dry_run=1".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace web {

struct QueryItem {
    std::string name, value;
};

struct Target {
    std::string path; // decoded, from its first slash
    std::vector<QueryItem> query;
};

constexpr size_t kQueryItemsMax = 64;

// Throws Refusal (400) for a query of more items than that. parseTarget() does it as well.
void checkQuerySize(std::string_view target);

// Decodes percent signs, in the query also '+'. Throws Refusal (400) for a target that is not a path, a percent sign
// without two digits, or a NUL.
Target parseTarget(std::string_view text);

} // namespace web
