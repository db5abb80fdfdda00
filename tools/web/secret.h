// SPDX-License-Identifier: MIT
// What no page shows: it is asked for by a request of its own.
#pragma once

#include "call.h"
#include "pages/value.h"

namespace web {

// {"KeyPassphrase": ..., "WEPKey": ..., "RadiusSecret": ...} of an SSID. Throws Failure.
pages::Value secretOf(const Call &call);

} // namespace web
