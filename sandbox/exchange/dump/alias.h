// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/dump/row.h"

namespace sandbox {

// Gives instances that paths name by an alias, "Device.IP.Interface.[lan].", their numbers: that of the instance
// whose Alias it is, else the next one that no path of the table has. Counted in the report.
void numberAliases(Dump &dump);

} // namespace sandbox
