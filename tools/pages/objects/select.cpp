// SPDX-License-Identifier: MIT
#include "pages/objects/select.h"

#include "help/similar.h"
#include "pages/failure.h"
#include "pages/objects/hint.h"
#include "pages/text.h"

#include <algorithm>
#include <optional>

namespace pages::objects {
namespace {

bool isWanted(const std::vector<Parameter> &names, const Parameter &candidate) {
    return std::any_of(names.begin(), names.end(), [&](const Parameter &name) { return name.name == candidate.name; });
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

// Other spellings of what a value may mean: as the layer writes flags and numbers, and flags as other makers' gateways
// have them in texts.
std::vector<std::string> spellings(const std::string &value) {
    std::vector<std::string> result = {value, spelledLike(Value(true), value), spelledLike(Value(0), value)};
    if (const Value flag = flagOf(value); flag.isFlag()) {
        for (const char *other :
             {flag.flag() ? "1" : "0", flag.flag() ? "TRUE" : "FALSE", flag.flag() ? "True" : "False"}) {
            result.emplace_back(other);
        }
    }
    std::vector<std::string> different;
    for (const std::string &one : result) {
        if (std::find(different.begin(), different.end(), one) == different.end()) {
            different.push_back(one);
        }
    }
    return different;
}

// All combinations of the filters' spellings, the given one first.
std::vector<std::vector<Parameter>> spelledFilters(const std::vector<Parameter> &where) {
    std::vector<std::vector<Parameter>> result = {{}};
    for (const Parameter &filter : where) {
        std::vector<std::vector<Parameter>> longer;
        for (const std::vector<Parameter> &before : result) {
            for (const std::string &value : spellings(filter.value)) {
                longer.push_back(before);
                longer.back().push_back({filter.name, value});
            }
        }
        result = std::move(longer);
    }
    return result;
}

// Of a filter that nothing matched: its parameter may be none.
void refuseUnknown(const std::string &object, const std::string &parameter) {
    const std::vector<std::string> names = namesIn(object);
    if (!names.empty() && std::find(names.begin(), names.end(), parameter) == names.end()) {
        throw absentParameter(object, parameter, help::didYouMean(parameter, names));
    }
}

std::vector<Object> getFiltered(Object request, const std::vector<Parameter> &where) {
    std::optional<Failure> first;
    for (const std::vector<Parameter> &filters : spelledFilters(where)) {
        try {
            request.filters = filters;
            return get({request}, Reading::Leaf);
        } catch (const Failure &failure) {
            if (failure.category() != Category::Absent) {
                throw;
            }
            first = first ? first : failure;
        }
    }
    for (const Parameter &filter : where) {
        refuseUnknown(request.name, filter.name);
    }
    throw Failure(*first);
}

// Whether a path begins with what the pattern says.
bool begins(const std::vector<std::string> &path, const std::vector<std::string> &pattern) {
    return path.size() >= pattern.size() && std::equal(pattern.begin(), pattern.end(), path.begin(),
                                                       [](const std::string &wanted, const std::string &part) {
                                                           return wanted == "*" || wanted == part;
                                                       });
}

} // namespace

std::string withDot(const std::string &path) {
    return path.ends_with('.') ? path : path + ".";
}

std::vector<std::string> partsOf(const std::string &path) {
    std::vector<std::string> parts;
    std::string_view rest = withoutDot(path);
    while (!rest.empty()) {
        const size_t dot = std::min(rest.find('.'), rest.size());
        parts.emplace_back(rest.substr(0, dot));
        rest.remove_prefix(std::min(dot + 1, rest.size()));
    }
    return parts;
}

bool has(const Object &object, const std::string &parameter) {
    return std::any_of(object.parameters.begin(), object.parameters.end(),
                       [&](const Parameter &candidate) { return candidate.name == parameter; });
}

// With a filter the layer answers all below the matching instances; what was not asked for goes out here.
std::vector<Object> matching(const Object &asked, const std::vector<Parameter> &where, bool leaf) {
    std::vector<Object> result = getFiltered({asked.name}, where);
    if (leaf) {
        std::erase_if(result, [&](const Object &object) { return !isInstance(asked, object); });
    }
    if (!asked.parameters.empty()) {
        narrow(asked, result);
    }
    return result;
}

bool isPattern(const Object &asked) {
    const std::vector<std::string> parts = partsOf(asked.name);
    return std::find(parts.begin(), parts.end(), "*") != parts.end();
}

std::vector<Object> matchingPattern(const Object &asked) {
    const std::vector<std::string> pattern = partsOf(asked.name);
    const std::string branch = asked.name.substr(0, asked.name.find('*'));
    std::vector<Object> result = get({{branch}}, Reading::Whole);
    for (Object &object : result) {
        const std::vector<std::string> path = partsOf(object.name);
        const auto isMatch = [&](const Parameter &parameter) {
            std::vector<std::string> whole = path;
            whole.push_back(parameter.name);
            return asked.parameters.empty() ? begins(whole, pattern)
                                            : path.size() == pattern.size() && begins(path, pattern) &&
                                                  isWanted(asked.parameters, parameter);
        };
        std::erase_if(object.parameters, [&](const Parameter &parameter) { return !isMatch(parameter); });
    }
    std::erase_if(result, [](const Object &object) { return object.parameters.empty(); });
    if (result.empty() && asked.parameters.empty()) {
        throw Failure(Category::Absent, asked.name + ": nothing here matches", asked.name);
    }
    return result;
}

std::vector<std::string> directlyBelow(const std::string &path, const std::vector<Object> &answer) {
    const std::string base = withDot(path);
    std::vector<std::string> names;
    const auto add = [&](const std::string &whole) {
        if (!whole.starts_with(base) || whole.size() == base.size()) {
            return;
        }
        const std::string name = whole.substr(base.size(), whole.find('.', base.size()) - base.size() + 1);
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(name);
        }
    };
    for (const Object &object : answer) {
        add(withDot(object.name));
        for (const Parameter &parameter : object.parameters) {
            add(withDot(object.name) + parameter.name);
        }
    }
    return names;
}

} // namespace pages::objects
