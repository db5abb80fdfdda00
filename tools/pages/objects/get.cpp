// SPDX-License-Identifier: MIT
#include "pages/objects/pages.h"

#include "pages/failure.h"
#include "pages/secret.h"
#include "pages/text.h"

#include <algorithm>

namespace pages::objects {
namespace {

std::string withDot(const std::string &path) {
    return path.ends_with('.') ? path : path + ".";
}

bool has(const Object &object, const std::string &parameter) {
    return std::any_of(object.parameters.begin(), object.parameters.end(),
                       [&](const Parameter &candidate) { return candidate.name == parameter; });
}

bool isWanted(const std::vector<Parameter> &names, const Parameter &candidate) {
    return std::any_of(names.begin(), names.end(), [&](const Parameter &name) { return name.name == candidate.name; });
}

// Layers differ in whether they refuse a name that an object does not have, or leave it out of the answer.
void checkAnswered(const Object &asked, const std::vector<Object> &answer) {
    const std::string branch = withDot(asked.name);
    for (const Parameter &parameter : asked.parameters) {
        const bool found = std::any_of(answer.begin(), answer.end(), [&](const Object &object) {
            return withDot(object.name).starts_with(branch) && has(object, parameter.name);
        });
        if (!found) {
            throw Failure(Category::Absent, branch + parameter.name + ": no object here has that parameter",
                          asked.name);
        }
    }
}

// Whether an object of an answer is an instance of the table asked for (or the object itself), not one below.
bool isInstance(const Object &asked, const Object &object) {
    const std::string name = withDot(object.name);
    return name.find('.', withDot(asked.name).size()) + 1 >= name.size() || name == withDot(asked.name);
}

// Leaves the wanted parameters. What the instances have themselves is not sought below them, as in a plain get.
void narrow(const Object &asked, std::vector<Object> &answer) {
    std::vector<Parameter> ofInstances;
    for (const Parameter &wanted : asked.parameters) {
        if (std::any_of(answer.begin(), answer.end(),
                        [&](const Object &object) { return isInstance(asked, object) && has(object, wanted.name); })) {
            ofInstances.push_back(wanted);
        }
    }
    for (Object &object : answer) {
        const bool instance = isInstance(asked, object);
        std::erase_if(object.parameters, [&](const Parameter &parameter) {
            return !isWanted(asked.parameters, parameter) || (!instance && isWanted(ofInstances, parameter));
        });
    }
    std::erase_if(answer, [](const Object &object) { return object.parameters.empty(); });
}

// With a filter the layer answers all below the matching instances; what was not asked for goes out here.
std::vector<Object> matching(const Object &asked, bool leaf) {
    Object request = asked;
    request.parameters.clear();
    std::vector<Object> result = get({request}, Reading::Leaf);
    if (leaf) {
        std::erase_if(result, [&](const Object &object) { return !isInstance(asked, object); });
    }
    if (!asked.parameters.empty()) {
        narrow(asked, result);
    }
    return result;
}

// "OBJECT.PARAM" as it stands in this command's own output; empty when the last word can be no parameter.
std::vector<Object> asParameter(const std::vector<Object> &objects) {
    const std::string &path = objects.front().name;
    const size_t dot = path.rfind('.');
    if (objects.size() != 1 || !objects.front().parameters.empty() || dot == std::string::npos ||
        dot + 1 == path.size()) {
        return {};
    }
    return {{path.substr(0, dot + 1), {{path.substr(dot + 1), {}}}}};
}

std::vector<Object> getObjects(const std::vector<Object> &objects, Reading reading) {
    try {
        return get(objects, reading);
    } catch (const Failure &failure) {
        const std::vector<Object> other = asParameter(objects);
        if (failure.category() != Category::Absent || other.empty()) {
            throw;
        }
        std::vector<Object> found;
        try {
            found = get(other, reading);
        } catch (const Failure &) {
            throw failure;
        }
        if (found.empty()) {
            throw;
        }
        return found;
    }
}

std::vector<Object> answer(const Query &query) {
    std::vector<Object> objects = query.objects;
    std::vector<Object> result;
    if (!query.where.empty()) {
        objects.front().filters = query.where;
        result = matching(objects.front(), query.leaf);
    } else {
        const Reading plain = query.leaf ? Reading::Leaf : Reading::Whole;
        result = getObjects(objects, query.defaults ? Reading::Defaults : plain);
    }
    for (const Object &object : objects) {
        checkAnswered(object, result);
    }
    return result;
}

} // namespace

void check(const Query &query) {
    if (query.defaults && (query.leaf || !query.where.empty())) {
        throw Usage("--defaults goes with neither --leaf nor --where");
    }
    if (!query.where.empty() && query.objects.size() > 1) {
        throw Usage("--where goes with one object");
    }
}

Report read(const Query &query) {
    check(query);
    Report result{.json = Value::object()};
    for (const Object &object : answer(query)) {
        Value &parameters = result.json[object.name];
        parameters = parameters.isNull() ? Value::object() : parameters;
        if (object.parameters.empty()) {
            result.table.rows.push_back({{withDot(object.name)}, {}});
        }
        for (const Parameter &parameter : object.parameters) {
            parameters[parameter.name] = shownValue(parameter.name, parameter.value);
            result.table.rows.push_back(
                {{withDot(object.name) + parameter.name}, {shownText(parameter.name, parameter.value)}});
            if (query.valuesOnly) {
                result.raw += shownText(parameter.name, parameter.value) + "\n";
            }
        }
    }
    return result;
}

} // namespace pages::objects
