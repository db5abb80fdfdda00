// SPDX-License-Identifier: MIT
#include "pages/objects/hint.h"

#include "caltofal.h"
#include "pages/objects/select.h"
#include "pages/similar.h"
#include "pages/text.h"

#include <algorithm>
#include <optional>

namespace pages::objects {
namespace {

Failure with(const Failure &failure, const std::string &hint) {
    return {failure.category(), failure.what() + hint, failure.object(), failure.code()};
}

// What stands directly below an object, without last dots; empty where there is no such object.
std::optional<std::vector<std::string>> below(const std::string &object) {
    try {
        std::vector<std::string> names = directlyBelow(object, get({{object}}, Reading::Whole));
        for (std::string &name : names) {
            name = withoutDot(name);
        }
        return names;
    } catch (const Failure &) {
        return std::nullopt;
    }
}

} // namespace

std::vector<std::string> namesIn(const std::string &object) {
    std::vector<std::string> names;
    for (const Object &one : get({{object}}, Reading::Leaf)) {
        for (const Parameter &parameter : one.parameters) {
            names.push_back(parameter.name);
        }
    }
    return names;
}

Failure withHint(const Failure &failure, const std::string &path) {
    if (failure.code() != CALTOFAL_ABSENT_OBJECT) {
        return failure;
    }
    std::string upper(withoutDot(path));
    for (size_t dot = upper.rfind('.'); dot != std::string::npos; dot = upper.rfind('.')) {
        const std::string part = upper.substr(dot + 1);
        upper.erase(dot);
        if (const std::optional<std::vector<std::string>> names = below(upper)) {
            return with(failure, didYouMean(part, *names));
        }
    }
    return failure;
}

Failure withHint(const Failure &failure, const std::vector<Object> &objects) {
    for (const Object &object : objects) {
        if (failure.code() == CALTOFAL_ABSENT_OBJECT && withoutDot(failure.object()) == withoutDot(object.name)) {
            return withHint(failure, object.name);
        }
        if (failure.code() != CALTOFAL_UNKNOWN_PARAMETER) {
            continue;
        }
        const std::vector<std::string> names = below(object.name).value_or(std::vector<std::string>());
        for (const Parameter &parameter : object.parameters) {
            if (std::find(names.begin(), names.end(), parameter.name) == names.end()) {
                return with(failure, didYouMean(parameter.name, names));
            }
        }
    }
    return failure;
}

} // namespace pages::objects
