// SPDX-License-Identifier: MIT
// Reads a gateway file as strictly as caltofal-sandbox does, which cannot be shared: docs/gateway-file.md binds both.
#pragma once

#include "pages/capture/line.h"

#include <string>
#include <vector>

namespace pages::capture {

// The parameters and their values. Comments, objects, patterns and recordings are judged as well and left out. Throws
// Failure at the first line that is wrong, which shows no more of it than its path; `file` names the text.
std::vector<Line> parametersOf(const std::string &text, const std::string &file);

} // namespace pages::capture
