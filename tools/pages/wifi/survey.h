// SPDX-License-Identifier: MIT
// The networks around, as the device's last scan left them in its result files.
#pragma once

#include "pages/checked.h"
#include "pages/report.h"

#include <string>
#include <vector>

namespace pages::wifi {

// The interfaces that have a result.
std::vector<InterfaceName> interfacesWithResult();

// The result file of an interface.
std::string surveyFile(const InterfaceName &interface);

// The networks of a result file; with an `ssid`, only that one: throws Failure when it is not there.
Report surveyReport(const std::string &file, const std::string &ssid);

} // namespace pages::wifi
