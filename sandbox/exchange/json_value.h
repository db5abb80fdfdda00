// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <optional>

namespace sandbox {

using Json = nlohmann::ordered_json;

// null where there is nothing.
template <typename Value>
Json jsonOrNull(const std::optional<Value> &value) {
    return value ? Json(*value) : Json();
}

} // namespace sandbox
