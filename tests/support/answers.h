// SPDX-License-Identifier: MIT
// Answers that reach every parameter that the library reads.
#pragma once

#include "platform.h"

namespace test {

// One answer that suits every function that asks the configuration layer: an object for each page, with all its
// parameters, and the objects that are read without a page. The values lead on to what is asked next.
const Reply &richAnswer();

} // namespace test
