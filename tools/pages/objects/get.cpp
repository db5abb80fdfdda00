// SPDX-License-Identifier: MIT
#include "help/similar.h"
#include "pages/failure.h"
#include "pages/layer/definition.h"
#include "pages/layer/request_log.h"
#include "pages/objects/hint.h"
#include "pages/objects/pages.h"
#include "pages/objects/select.h"
#include "pages/page.h"
#include "pages/secret.h"
#include "pages/text.h"

#include <algorithm>

namespace pages::objects {
namespace {

// Layers differ in whether they refuse a name that an object does not have, or leave it out of the answer.
void checkAnswered(const Object &asked, const std::vector<Object> &answer) {
    const std::string branch = withDot(asked.name);
    std::vector<std::string> missing;
    for (const Parameter &parameter : asked.parameters) {
        const bool found = std::any_of(answer.begin(), answer.end(), [&](const Object &object) {
            return withDot(object.name).starts_with(branch) && has(object, parameter.name);
        });
        if (!found) {
            missing.push_back(parameter.name);
        }
    }
    if (!missing.empty()) {
        throw absentParameter(asked.name, joined(missing), parameterHint(missing.front(), asked.name));
    }
}

// What matches a pattern, with each parameter that was asked for by name in one object at least.
std::vector<Object> getPattern(const Object &asked) {
    std::vector<Object> answer = matchingPattern(asked);
    for (const Parameter &parameter : asked.parameters) {
        const auto isThere = [&](const Object &object) { return has(object, parameter.name); };
        if (std::any_of(answer.begin(), answer.end(), isThere)) {
            continue;
        }
        std::vector<std::string> names;
        for (const Object &object : matchingPattern({asked.name})) {
            for (const Parameter &other : object.parameters) {
                names.push_back(other.name);
            }
        }
        throw absentParameter(asked.name, parameter.name, help::didYouMean(parameter.name, names));
    }
    return answer;
}

// "OBJECT.PARAM" as it stands in this command's own output; empty when the last word can be no parameter.
std::vector<Object> asParameter(const Object &object) {
    const std::string &path = object.name;
    const size_t dot = path.rfind('.');
    if (!object.parameters.empty() || dot == std::string::npos || dot + 1 == path.size()) {
        return {};
    }
    return {{path.substr(0, dot), {{path.substr(dot + 1)}}}};
}

// The same where the layer tells what is a parameter without being asked for an object of that name.
void resolveParameters(std::vector<Object> &objects) {
    for (Object &object : objects) {
        const std::vector<Object> other = asParameter(object);
        if (!other.empty() && !definitionOf(object.name).empty()) {
            object = other.front();
        }
    }
}

std::vector<Object> getObject(const Object &object, Reading reading) {
    try {
        return get({object}, reading);
    } catch (const Failure &failure) {
        const std::vector<Object> other = asParameter(object);
        if (failure.category() != Category::Absent || other.empty()) {
            throw;
        }
        std::vector<Object> found;
        try {
            found = get(other, reading);
        } catch (const Failure &) {
            throw Failure(failure);
        }
        if (found.empty()) {
            throw;
        }
        return found;
    }
}

// In one message; where that fails, one by one, as some may be parameters.
std::vector<Object> getObjects(const std::vector<Object> &objects, Reading reading) {
    try {
        return objects.size() == 1 ? getObject(objects.front(), reading) : get(objects, reading);
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent || objects.size() == 1) {
            throw;
        }
    }
    std::vector<Object> result;
    for (const Object &object : objects) {
        const std::vector<Object> some = getObject(object, reading);
        result.insert(result.end(), some.begin(), some.end());
    }
    return result;
}

std::vector<Object> answer(const Query &query) {
    const Reading plain = query.leaf ? Reading::Leaf : Reading::Whole;
    std::vector<Object> result;
    if (std::any_of(query.objects.begin(), query.objects.end(), isPattern)) {
        for (const Object &object : query.objects) {
            const std::vector<Object> some = isPattern(object) ? getPattern(object) : get({object}, plain);
            result.insert(result.end(), some.begin(), some.end());
        }
        return result;
    }
    if (!query.where.empty()) {
        result = matching(query.objects.front(), query.where, query.leaf);
    } else {
        result = getObjects(query.objects, query.defaults ? Reading::Defaults : plain);
    }
    for (const Object &object : query.objects) {
        checkAnswered(object, result);
    }
    return result;
}

Report namesBelow(const Query &query) {
    Report result{.json = Value::object()};
    for (const Object &object : query.objects) {
        Value &list = result.json[withoutDot(object.name)];
        list = Value::list();
        const std::vector<Object> answer =
            query.where.empty() ? get({object}, Reading::Whole) : matching(object, query.where, false);
        for (const std::string &name : directlyBelow(object.name, answer)) {
            list.push(name);
            result.table.rows.push_back({{withDot(object.name) + name}});
        }
    }
    return result;
}

Report typesOf(const std::vector<Object> &objects) {
    if (!isSandbox()) {
        throw Failure(Category::Failed, "--types: this device's configuration layer does not tell them");
    }
    Report result{.json = Value::object()};
    for (const Object &object : objects) {
        for (const Parameter &parameter : object.parameters) {
            const std::string path = withDot(object.name) + parameter.name;
            const std::string definition = shownDefinition(parameter.name, definitionOf(path));
            result.json[withoutDot(object.name)][parameter.name] = definition;
            result.table.rows.push_back({{path}, {readable(definition)}});
        }
    }
    return result;
}

// What `work` answers, with a hint where something is not there.
template <class Work>
auto hinted(const std::vector<Object> &objects, Work work) {
    try {
        return work();
    } catch (const Failure &failure) {
        throw withHint(failure, objects);
    }
}

Report reportOf(const Query &query) {
    if (query.names) {
        return namesBelow(query);
    }
    if (query.types) {
        return typesOf(answer(query));
    }
    Report result{.json = Value::object()};
    for (const Object &object : answer(query)) {
        Value &parameters = result.json[withoutDot(object.name)];
        parameters = parameters.isNull() ? Value::object() : parameters;
        if (object.parameters.empty()) {
            result.table.rows.push_back({{std::string(withoutDot(object.name))}, {}});
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

bool beginsWithPattern(const Object &asked) {
    return asked.name.starts_with('*') && isPattern(asked);
}

// A word with a "*" that does not stand for a whole part: of a path, or as a name. The name of an instance, in
// brackets, may hold any byte.
void refusePartOfPart(const std::string &word) {
    const std::vector<std::string> parts = partsOf(word);
    const auto slip = std::find_if(parts.begin(), parts.end(), [](const std::string &part) {
        return part.size() > 1 && part.find('*') != std::string::npos;
    });
    if (slip != parts.end() && word.find('[') == std::string::npos) {
        throw Usage(inQuotes(*slip) + ": \"*\" stands for a whole part of a path, not for some of its letters");
    }
}

} // namespace

void check(const Query &query) {
    for (const Object &object : query.objects) {
        refusePartOfPart(object.name);
        for (const Parameter &parameter : object.parameters) {
            refusePartOfPart(parameter.name);
        }
    }
    if (query.defaults && (query.leaf || !query.where.empty())) {
        throw Usage("--defaults goes with neither --leaf nor --where");
    }
    if (!query.where.empty() && query.objects.size() > 1) {
        throw Usage("--where goes with one object");
    }
    if (query.types && query.valuesOnly) {
        throw Usage("--types and --values exclude each other");
    }
    if (query.names && (query.leaf || query.defaults || query.types || query.valuesOnly)) {
        throw Usage("--names goes with none of --leaf, --defaults, --types and --values");
    }
    const bool parameters = std::any_of(query.objects.begin(), query.objects.end(),
                                        [](const Object &object) { return !object.parameters.empty(); });
    if (query.names && parameters) {
        throw Usage("--names tells what stands below objects: a parameter has nothing below it");
    }
    if (std::any_of(query.objects.begin(), query.objects.end(), beginsWithPattern)) {
        throw Usage("a path begins with an object's name, not with \"*\"");
    }
    const bool pattern = std::any_of(query.objects.begin(), query.objects.end(), isPattern);
    if (pattern && (query.defaults || query.names || !query.where.empty())) {
        throw Usage("\"*\" in a path goes with none of --defaults, --names and --where");
    }
}

std::vector<Object> readWhole(std::vector<Object> objects) {
    resolveParameters(objects);
    return hinted(objects, [&] {
        std::vector<Object> answer = getObjects(objects, Reading::Whole);
        for (const Object &object : objects) {
            checkAnswered(object, answer);
        }
        return answer;
    });
}

Report read(const Query &asked) {
    Query query = asked;
    resolveParameters(query.objects);
    check(query);
    return hinted(query.objects, [&] { return reportOf(query); });
}

} // namespace pages::objects
