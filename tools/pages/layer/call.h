// SPDX-License-Identifier: MIT
// Calling a page function of the library, and telling which of its requests made it fail.
#pragma once

#include "pages/failure.h"

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace pages {

struct Expectation {
    // What to say when every request was answered and the function failed all the same: the gateway lacks something.
    std::string absent;
    // Beginnings of the objects on which the result hangs, where the function also asks for others in silence.
    std::initializer_list<std::string_view> decisive = {};
    // A failure code that is an answer for this page, 0 for none.
    int tolerated = 0;
};

// What `call` answers; throws a Failure when it is negative and not tolerated.
int ask(const std::function<int()> &call, const Expectation &expectation);

// Likewise for a function that hides a failed request behind what it found until then: each of its requests counts.
int askEvery(const std::function<int()> &call);

} // namespace pages
