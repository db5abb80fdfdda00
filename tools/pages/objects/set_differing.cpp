// SPDX-License-Identifier: MIT
// Writes only what differs from what the gateway holds.
#include "pages/objects/pages.h"

#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/text.h"

#include <algorithm>

namespace pages::objects {
namespace {

const Object &objectNamed(const std::vector<Object> &answer, const std::string &name) {
    const auto found = std::find_if(answer.begin(), answer.end(),
                                    [&](const Object &object) { return withoutDot(object.name) == withoutDot(name); });
    if (found == answer.end()) {
        throw Failure(Category::Absent, name + ": no such object", name);
    }
    return *found;
}

const std::string &valueNow(const Object &object, const std::string &parameter) {
    for (const Parameter &candidate : object.parameters) {
        if (candidate.name == parameter) {
            return candidate.value;
        }
    }
    throw Failure(Category::Absent, object.name + "." + parameter + ": no such parameter", object.name);
}

// What the gateway holds of the parameters.
std::vector<Object> current(const std::vector<Object> &wanted) {
    std::vector<Object> asked = wanted;
    for (Object &object : asked) {
        for (Parameter &parameter : object.parameters) {
            parameter.value.clear();
        }
    }
    return get(asked, Reading::Leaf);
}

} // namespace

Report setDiffering(const std::vector<Object> &wanted, bool dryRun, bool storeOnly) {
    const std::vector<Object> now = current(wanted);
    std::vector<Object> changes;
    Report result;
    result.json["changes"] = Value::list();
    for (const Object &object : wanted) {
        const Object &held = objectNamed(now, object.name);
        Object differing{object.name};
        for (const Parameter &parameter : object.parameters) {
            const std::string &from = valueNow(held, parameter.name);
            const std::string to = spelledLike(typed(parameter.name, from), parameter.value);
            if (from == to && !storeOnly) {
                continue;
            }
            differing.parameters.push_back({parameter.name, to});
            result.json["changes"].push(Value::object({{"object", withoutDot(object.name)},
                                                       {"parameter", parameter.name},
                                                       {"from", typed(parameter.name, from)},
                                                       {"to", typed(parameter.name, to)}}));
        }
        if (!differing.parameters.empty()) {
            changes.push_back(differing);
        }
    }
    const bool writes = !changes.empty() && !dryRun;
    if (writes) {
        change(changes, Change::Set, storeOnly);
    }
    result.json["written"] = writes;
    result.json["applied"] = writes && !storeOnly;
    return result;
}

} // namespace pages::objects
