// SPDX-License-Identifier: MIT
// Every request that the library hands to the configuration layer, in order, with the layer's own answer. A page of the
// library asks for several objects and answers one code; this log knows which of the requests failed and why.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace cli {

struct Request {
    const char *verb;                 // "get", "set" or "store"
    std::vector<std::string> objects; // as they were asked for
    int code;                         // the layer's
    std::string reason;               // the layer's own words for a refusal; empty where it has none
};

// All requests since the start. Later requests invalidate the span.
std::span<const Request> requests();

// "Device.A." or "Device.A., Device.B.".
std::string objectNames(const Request &request);

// Why a request was refused: the layer's own words, else what its code means.
std::string reasonOf(const Request &request);

// Whether the layer is the sandbox's: it alone explains its refusals.
bool isSandbox();

} // namespace cli
