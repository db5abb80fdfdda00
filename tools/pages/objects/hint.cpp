// SPDX-License-Identifier: MIT
#include "pages/objects/hint.h"

#include "caltofal.h"
#include "help/similar.h"
#include "pages/objects/select.h"
#include "pages/text.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <span>

namespace pages::objects {
namespace {

constexpr const char *kRoots[] = {"Device", "InternetGatewayDevice"};

Failure with(const Failure &failure, const std::string &hint) {
    std::string message = failure.what();
    message.insert(explanationIn(message), hint);
    return {failure.category(), message, failure.object(), failure.code()};
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

// The path below the root, each part spelled as there, up to the first one that nothing there is like.
std::string spelledBelow(std::string path, std::span<const std::string> parts) {
    for (const std::string &part : parts) {
        const std::vector<std::string> names = below(path).value_or(std::vector<std::string>());
        const bool there = std::find(names.begin(), names.end(), part) != names.end();
        const std::vector<std::string> near = there ? std::vector{part} : help::similar(part, names);
        if (near.empty()) {
            break;
        }
        path += "." + near.front();
    }
    return path;
}

// For a path that begins with a misspelt root, or without one.
std::string didYouMeanRooted(const std::string &path) {
    const std::vector<std::string> parts = partsOf(path);
    if (parts.empty() || std::find(std::begin(kRoots), std::end(kRoots), parts.front()) != std::end(kRoots)) {
        return "";
    }
    const std::span<const std::string> all(parts);
    const std::vector<std::string> near = help::similar(parts.front(), {std::begin(kRoots), std::end(kRoots)});
    const std::string meant = near.empty() ? spelledBelow(kRoots[0], all) : spelledBelow(near.front(), all.subspan(1));
    return near.empty() && meant == kRoots[0] ? "" : " (did you mean " + meant + "?)";
}

} // namespace

std::string parameterHint(const std::string &parameter, const std::string &object) {
    const std::string hint = help::didYouMean(parameter, namesIn(object));
    const bool path = hint.empty() && parameter.find('.') != std::string::npos;
    return path ? didYouMeanRooted(parameter) : hint;
}

Failure absentParameter(const std::string &object, const std::string &parameters, const std::string &hint) {
    return {Category::Absent,
            std::string(withoutDot(object)) + "." + parameters + ": no object here has that parameter" + hint, object};
}

std::vector<std::string> namesIn(const std::string &object) {
    std::vector<std::string> names;
    for (const Object &one : get({{object}}, Reading::Leaf)) {
        for (const Parameter &parameter : one.parameters) {
            names.push_back(parameter.name);
        }
    }
    return names;
}

Failure withParameterHint(const Failure &failure, const std::string &table,
                          const std::vector<std::string> &parameters) {
    const std::vector<std::string> names = namesIn(table);
    const auto wrong = std::find_if(parameters.begin(), parameters.end(), [&](const std::string &parameter) {
        return std::find(names.begin(), names.end(), parameter) == names.end();
    });
    return wrong == parameters.end() ? failure : with(failure, help::didYouMean(*wrong, names));
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
            return with(failure, help::didYouMean(part, *names));
        }
    }
    return with(failure, didYouMeanRooted(path));
}

Failure withHint(const Failure &failure, const std::vector<Object> &objects) {
    for (const Object &object : objects) {
        const std::string path = object.name.substr(0, object.name.find('*')); // what was asked for of a pattern
        if (failure.code() == CALTOFAL_ABSENT_OBJECT && withoutDot(failure.object()) == withoutDot(path)) {
            return withHint(failure, path);
        }
        if (failure.code() != CALTOFAL_UNKNOWN_PARAMETER) {
            continue;
        }
        const std::vector<std::string> names = below(object.name).value_or(std::vector<std::string>());
        for (const Parameter &parameter : object.parameters) {
            if (std::find(names.begin(), names.end(), parameter.name) == names.end()) {
                return with(failure, help::didYouMean(parameter.name, names));
            }
        }
    }
    return failure;
}

} // namespace pages::objects
