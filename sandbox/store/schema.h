// SPDX-License-Identifier: MIT
//
// The tables of a gateway's store.
#pragma once

#include "store/database.h"

#include <functional>

namespace sandbox {

// Makes the tables in an empty database, and has them filled.
void createSchema(Database &database, const std::function<void(Database &)> &fill);

// Throws a Refusal when the database is not a store that this version can use.
void checkSchema(Database &database, const std::string &file);

// Bits of object.presence: which of the two models the object is part of.
constexpr int kRunning = 1;
constexpr int kStored = 2;
constexpr int kEverywhere = kRunning | kStored;

// object.kind
enum class ObjectKind { Plain = 0, Table = 1, Instance = 2 };

} // namespace sandbox
