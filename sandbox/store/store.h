// SPDX-License-Identifier: MIT
//
// A gateway's store as a file: opening, making, removing.
#pragma once

#include "store/database.h"
#include "store/location.h"
#include "value/refusal.h"

#include <functional>
#include <memory>
#include <vector>

namespace sandbox {

// The refusal of a name that no gateway can have.
class WrongName : public Refusal {
    using Refusal::Refusal;
};

// Opens a gateway. Throws a Refusal with CALTOFAL_NO_GATEWAY when there is none, or when the name is not a gateway's.
std::unique_ptr<Database> openStore(const Location &location);

// The refusal of a gateway that does not exist; `hint` stands behind the reason.
Refusal noGateway(const Location &location, const std::string &hint = "");

// Whether the gateway exists. Throws a Refusal when it cannot be told.
bool storeExists(const Location &location);

// Makes a gateway; `fill` puts the model into its empty database. It appears whole or not at all. False when it exists
// already, also when another process has made it in the meantime. Throws a Refusal with CALTOFAL_NO_GATEWAY
// for a name that isNewGatewayName() refuses. What `fill` throws passes through.
bool createStore(const Location &location, const std::function<void(Database &)> &fill);

// Whether there was such a gateway.
bool removeStore(const Location &location);

// The names of the gateways of a directory, sorted.
std::vector<std::string> storeNames(const std::string &directory);

} // namespace sandbox
