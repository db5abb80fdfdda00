// SPDX-License-Identifier: MIT
// A request that was understood: which resource, what is to be done with it, and with which values. Nothing here asks
// the gateway or knows of connections.
#pragma once

#include "pages/value.h"
#include "resource.h"
#include "target.h"

#include <string>
#include <string_view>
#include <vector>

namespace web {

struct Call {
    const Resource *resource = nullptr;
    unsigned method = 0; // one of Method
    std::string argument;
    std::vector<QueryItem> query;
    pages::Value body = pages::Value::object();

    // The query's last value of that name; "" where it is not there.
    [[nodiscard]] std::string text(std::string_view name) const;
    // Whether a flag of the query is set. Throws Refusal (400) for a value other than 1 and 0, and for one that is
    // given twice.
    [[nodiscard]] bool flag(std::string_view name) const;
};

// Finds the resource. Throws Refusal: 400, 404, or 405 where it does not know the method.
Call parseCall(std::string_view method, const Target &target);

// Adds a change's body. Throws pages::Usage.
void takeBody(Call &call, std::string_view body);

} // namespace web
