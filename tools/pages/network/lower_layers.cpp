// SPDX-License-Identifier: MIT
#include "pages/network/pages.h"

#include "caltofal.h"
#include "pages/checked.h"
#include "pages/layer/call.h"

#include <algorithm>

namespace pages {
namespace {

std::string below(const std::string &object) {
    char layers[128] = "";
    ask([&] { return ZintuGet_LowerLayers(object.c_str(), layers); }, {object + ": no lower layers"});
    return text(layers);
}

} // namespace

Report lowerLayers(const std::string &object, bool walk) {
    Report result{.json = Value::object({{"object", object}, {"lower_layers", Value::list()}})};
    Value &layers = result.json["lower_layers"];
    for (std::string upper = checkedPath(object); !upper.empty();) {
        const std::string next = below(upper);
        const bool seen = std::find(layers.items().begin(), layers.items().end(), next) != layers.items().end();
        if (next.empty() || seen) {
            break;
        }
        layers.push(next);
        result.table.rows.push_back({{next}});
        // A list names several: the walk goes on below the first.
        upper = walk ? next.substr(0, next.find(',')) : "";
    }
    return result;
}

} // namespace pages
