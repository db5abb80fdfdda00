// SPDX-License-Identifier: MIT
// Messages of one's own: several objects, one exchange with the configuration layer.
#pragma once

#include "caltofal.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pages {

struct Parameter {
    std::string name;
    std::string value = {};
};

// An object of a request or of an answer.
struct Object {
    std::string name;
    std::vector<Parameter> parameters = {};
    std::vector<Parameter> filters = {}; // of a get
};

// How a get goes about it: the message's list flags.
enum class Reading : uint32_t {
    Whole = CALTOFAL_LIST_GET,            // the object and all below it
    Leaf = CALTOFAL_LIST_GET_LEAF,        // its own parameters; with filters, the instances that match
    Defaults = CALTOFAL_LIST_GET_DEFAULT, // the values after a factory reset
};

// Sub-operations of a change.
enum class Change : uint32_t {
    Add = CALTOFAL_SUBOPER_ADD,
    Delete = CALTOFAL_SUBOPER_DELETE,
    Set = CALTOFAL_SUBOPER_SET
};

// The objects of the answer. Parameters' values count in filters only. Throws Failure.
std::vector<Object> get(const std::vector<Object> &objects, Reading reading);

// Changes everything or nothing; answers the objects as the layer left them in the message. `storeOnly`: not applied.
// Throws Failure.
std::vector<Object> change(const std::vector<Object> &objects, Change what, bool storeOnly);

// The value of a parameter of an answer; "" when it is not there.
std::string valueOf(const Object &object, std::string_view parameter);

// "Device.WiFi.Radio.2." -> 2; 0 when the path has no number at its end.
int instanceOf(std::string_view path);

} // namespace pages
