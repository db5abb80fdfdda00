// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/checked.h"
#include "pages/layer/call.h"
#include "pages/layer/query.h"
#include "pages/network/pages.h"

#include <algorithm>

namespace pages {
namespace {

constexpr size_t kRecordSize = 128;

std::string below(const std::string &object) {
    char layers[kRecordSize] = "";
    ask([&] { return ZintuGet_LowerLayers(object.c_str(), layers); }, {object + ": no lower layers"});
    return text(layers);
}

std::string wholeListOf(const std::string &object) {
    const std::vector<Object> found = get({{object, {{"LowerLayers"}}}}, Reading::Leaf);
    if (found.empty() || found.front().parameters.empty()) {
        throw Failure(Category::Absent, object + ": no lower layers", object);
    }
    return valueOf(found.front(), "LowerLayers");
}

void add(Report &result, const std::string &layers) {
    result.json["lower_layers"].push(plainPaths(layers));
    result.table.rows.push_back({{plainPaths(layers)}});
}

bool isSeen(const Value &layers, const std::string &next) {
    return std::find(layers.items().begin(), layers.items().end(), next) != layers.items().end();
}

} // namespace

Report lowerLayers(const std::string &object, LowerLayers how) {
    Report result{.json =
                      Value::object({{"object", withoutDot(checkedPath(object))}, {"lower_layers", Value::list()}})};
    if (how == LowerLayers::Whole) {
        add(result, wholeListOf(object));
        return result;
    }
    for (std::string upper = object; !upper.empty();) {
        const std::string next = below(upper);
        if (next.empty() || isSeen(result.json["lower_layers"], plainPaths(next))) {
            break;
        }
        if (next.size() >= kRecordSize - 1 && wholeListOf(upper).size() > next.size()) {
            result.notes.push_back(upper + ": the list is cut at the " + std::to_string(kRecordSize - 1) +
                                   " characters of the library's record; --all shows the whole one");
        }
        add(result, next);
        // A list names several: the walk goes on below the first.
        upper = how == LowerLayers::Walk ? next.substr(0, next.find(',')) : "";
    }
    return result;
}

} // namespace pages
