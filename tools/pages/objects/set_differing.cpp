// SPDX-License-Identifier: MIT
// Writes only what differs from what the gateway holds.
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/objects/pages.h"
#include "pages/secret.h"
#include "pages/text.h"

namespace pages::objects {
namespace {

// The layer refuses an object that is not there, and leaves out a parameter that is not.
const std::string &valueNow(const std::vector<Object> &answer, const std::string &object, const std::string &name) {
    for (const Object &candidate : answer) {
        for (const Parameter &parameter : candidate.parameters) {
            if (parameter.name == name && withoutDot(candidate.name) == withoutDot(object)) {
                return parameter.value;
            }
        }
    }
    throw Failure(Category::Absent, std::string(withoutDot(object)) + "." + name + ": no such parameter", object);
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
        Object differing{object.name};
        for (const Parameter &parameter : object.parameters) {
            refuseHidden(parameter.name, parameter.value);
            const std::string &from = valueNow(now, object.name, parameter.name);
            const std::string to = spelledLike(typed(parameter.name, from), parameter.value);
            if (from == to && !storeOnly) {
                continue;
            }
            differing.parameters.push_back({parameter.name, to});
            result.json["changes"].push(Value::object({{"object", withoutDot(object.name)},
                                                       {"parameter", parameter.name},
                                                       {"from", shownValue(parameter.name, from)},
                                                       {"to", shownValue(parameter.name, to)}}));
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
