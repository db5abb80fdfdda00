// SPDX-License-Identifier: MIT
// The configuration layer's codes as categories and words.
#pragma once

#include "pages/failure.h"

#include <string>

namespace pages {

// The category of a code of the layer; Failed for one that is not known.
Category categoryOf(int code);

// What a code means, such as "the object does not exist"; with its number for one that is not known.
std::string meaningOf(int code);

} // namespace pages
