// SPDX-License-Identifier: MIT
// Every exported function that asks the configuration layer, as rows: for tests that treat them all alike.
#pragma once

#include "answers.h"
#include "platform.h"

#include <functional>

namespace test {

struct Getter {
    const char *name;
    size_t leftMessages; // messages that it leaves unreleased on purpose
    // Calls it on records of its own; the result and what the records hold, as bytes.
    std::function<std::string()> run;
    // How a failed test names it.
    friend void PrintTo(const Getter &getter, std::ostream *out) { *out << getter.name; }
};

const std::vector<Getter> &getters();

} // namespace test
