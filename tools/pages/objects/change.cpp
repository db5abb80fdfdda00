// SPDX-License-Identifier: MIT
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/objects/hint.h"
#include "pages/objects/pages.h"
#include "pages/objects/select.h"
#include "pages/secret.h"
#include "pages/text.h"

namespace pages::objects {
namespace {

Value listOf(const std::vector<Object> &objects) {
    Value list = Value::list();
    for (const Object &object : objects) {
        Value entry = Value::object({{"object", withoutDot(object.name)}});
        for (const Parameter &parameter : object.parameters) {
            entry["parameters"][parameter.name] = shownValue(parameter.name, parameter.value);
        }
        list.push(entry);
    }
    return list;
}

void refuseHiddenIn(const std::vector<Object> &objects) {
    for (const Object &object : objects) {
        for (const Parameter &parameter : object.parameters) {
            pages::refuseHidden(parameter.name, parameter.value);
        }
    }
}

// The paths of what an object's parameters are set to.
std::vector<std::string> pathsIn(const Object &object) {
    std::vector<std::string> paths;
    for (const Parameter &parameter : object.parameters) {
        paths.push_back(withDot(object.name) + parameter.name);
    }
    return paths;
}

Report report(const char *what, const std::vector<Object> &objects, bool storeOnly) {
    return {.json = Value::object({{what, listOf(objects)}, {"applied", !storeOnly}})};
}

// `change` with a hint where something is not there.
std::vector<Object> hintedChange(const std::vector<Object> &objects, Change what, bool storeOnly) {
    try {
        return change(objects, what, storeOnly);
    } catch (const Failure &failure) {
        throw withHint(failure, objects);
    }
}

} // namespace

Report set(const std::vector<Object> &objects, bool storeOnly) {
    std::vector<std::string> paths;
    for (const Object &object : objects) {
        if (object.parameters.empty()) {
            throw Usage(object.name + ": nothing to set");
        }
        const std::vector<std::string> more = pathsIn(object);
        paths.insert(paths.end(), more.begin(), more.end());
    }
    refuseTwice(paths);
    refuseHiddenIn(objects);
    hintedChange(objects, Change::Set, storeOnly);
    return report("set", objects, storeOnly);
}

// The layer puts the new instances' names into the message.
Report add(const std::vector<Object> &tables, bool storeOnly) {
    for (const Object &table : tables) { // each time one stands there it is for another instance
        refuseTwice(pathsIn(table));
    }
    refuseHiddenIn(tables);
    const std::vector<Object> added = hintedChange(tables, Change::Add, storeOnly);
    Report result = report("added", added, storeOnly);
    for (const Object &object : added) {
        result.table.rows.push_back({{std::string(withoutDot(object.name))}});
    }
    return result;
}

Report remove(const std::vector<std::string> &instances, bool storeOnly) {
    std::vector<Object> objects;
    objects.reserve(instances.size());
    for (const std::string &instance : instances) {
        objects.push_back({checkedPath(instance)});
    }
    hintedChange(objects, Change::Delete, storeOnly);
    return report("deleted", objects, storeOnly);
}

} // namespace pages::objects
