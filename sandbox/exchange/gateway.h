// SPDX-License-Identifier: MIT
//
// Gateways by name: made of entries, and the demo gateways made on first use.
#pragma once

#include "exchange/import_report.h"
#include "store/database.h"
#include "store/location.h"
#include "value/entry.h"

#include <memory>
#include <string>
#include <vector>

namespace sandbox {

// Opens a gateway. One that does not exist is made from the demo of its name. Throws a Refusal with
// CALTOFAL_NO_GATEWAY when there is none, or when the name is not a gateway's.
std::unique_ptr<Database> openGateway(const Location &location);

// Makes a gateway of a file's entries. It appears whole or not at all. False when it exists already, also
// when another process has made it in the meantime. Throws FileError for a bad entry; with a report as importEntries()
// does.
bool createGateway(const Location &location, const Entries &entries, const std::string &file,
                   ImportReport *report = nullptr);

// The gateways of a directory, and the demos, in order.
std::vector<std::string> gatewayNames(const std::string &directory);

// " (did you mean home?)" for the name of none; "" where nothing is near.
std::string nearGateways(const std::string &name, const std::string &directory);

} // namespace sandbox
