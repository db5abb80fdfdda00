// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace sandbox {

// What one object of a get message asks for.
struct GetRequest {
    std::string path;
    std::vector<std::string> names;                           // none: every parameter
    std::vector<std::pair<std::string, std::string>> filters; // name and value that an instance must have
    bool leaf = false;                                        // own parameters, or the instances' own of a table
    bool defaults = false;                                    // default values in place of the running ones
};

// Takes one parameter of the answer; parameters of one object come in a row.
using Emit = std::function<void(std::string_view objectKey, std::string_view name, std::string_view value)>;

// Answers the request in model order, within the caller's transaction. Names that the objects lack are left out. Throws
// a Refusal for an absent object and for filters that no instance fulfils. Returns the names that were left out.
std::vector<std::string> readParameters(Database &database, const GetRequest &request, const Emit &emit);

// The object that a request names, for messages.
std::string shownPath(std::string_view path);

} // namespace sandbox
