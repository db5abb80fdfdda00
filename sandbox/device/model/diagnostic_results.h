// SPDX-License-Identifier: MIT
#pragma once

#include "device/model/neighbours.h"

#include <vector>

namespace device {

// The networks that a gateway found itself, in Device.WiFi.NeighboringWiFiDiagnostic.Result., as lines of a survey.
// Words of TR-181 are turned into those of the device's surveys; what is not said is "unknown". None without such a
// table.
std::vector<Neighbour> diagnosticResults(sandbox::Database &database);

} // namespace device
