// SPDX-License-Identifier: MIT
// A page shown again and again.
#pragma once

#include "caltofal/print.h"

#include <chrono>
#include <functional>

namespace cli {

// Until a signal comes: the interrupt key is how it ends well, other signals are thrown. On a terminal each page takes
// the place of the one before; JSON is one line a page. A page that fails after the first is told, and asked for again.
void watch(const std::function<pages::Report()> &page, const Form &form, std::chrono::seconds interval);

} // namespace cli
