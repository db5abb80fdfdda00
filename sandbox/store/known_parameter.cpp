// SPDX-License-Identifier: MIT
#include "store/known_parameter.h"

#include "store/model.h"
#include "value/path.h"

#include <algorithm>

namespace sandbox {
namespace {

// Whether a pattern gives the object of that key such a parameter.
bool isDeclared(Database &database, const std::string &key, std::string_view name) {
    const Templates templates(database, key);
    const std::vector<TemplateMatch> matches = templates.matching(key);
    return std::any_of(matches.begin(), matches.end(), [name](const TemplateMatch &match) {
        const std::vector<TemplateParameter> &parameters = match.object->parameters;
        return match.remainder.empty() &&
               std::any_of(parameters.begin(), parameters.end(),
                           [name](const TemplateParameter &parameter) { return parameter.name == name; });
    });
}

} // namespace

bool isParameterOfInstances(Database &database, int64_t table, std::string_view name) {
    Statement any(database, "SELECT 1 FROM parameter WHERE container = ?1 AND name = ?2 LIMIT 1", table, name);
    return any.step();
}

bool isKnownParameter(Database &database, std::string_view path, std::string_view name) {
    const std::optional<std::string> key = keyOf(path);
    if (!key) {
        return false;
    }
    if (const std::optional<ObjectRow> object = findObject(database, *key)) {
        return findParameter(database, object->id, name) || isParameterOfInstances(database, object->id, name) ||
               (object->kind == ObjectKind::Table && isDeclared(database, instanceKey(*key, 1), name));
    }
    const std::optional<ObjectRow> table = findObject(database, parentKey(*key));
    return isDeclared(database, *key, name) || (table && isParameterOfInstances(database, table->id, name));
}

} // namespace sandbox
