// SPDX-License-Identifier: MIT
// The configuration layer's codes as exit codes and words.
#pragma once

#include "pages/failure.h"

#include <string>

namespace cli {

// The exit code for a code of the layer; Failed for one that is not known.
Exit exitOf(int code);

// What a code means, such as "the object does not exist"; with its number for one that is not known.
std::string meaningOf(int code);

} // namespace cli
