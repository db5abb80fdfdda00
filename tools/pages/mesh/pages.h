// SPDX-License-Identifier: MIT
// The pages of the roaming mesh; each stands in the file of its name. They throw Failure.
#pragma once

#include "pages/process/wait.h"
#include "pages/report.h"

#include <string>

namespace pages::mesh {

// Whether the mesh is on, and who belongs to it. Needs the device.
Report status();

Report enable(bool on);

// Has the satellites take over this gateway's settings, where there is something to do. Needs the device.
Report sync(Wait &wait);

// The IP address of a satellite, or of a host; `mac` with colons. Needs the device.
Report ip(const std::string &mac);

} // namespace pages::mesh
