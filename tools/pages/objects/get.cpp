// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "pages/failure.h"
#include "pages/objects/words.h"

#include <algorithm>
#include <memory>

namespace cli {
namespace {

struct Arguments {
    std::vector<std::string> words;
    std::vector<std::string> where;
    bool leaf = false;
    bool defaults = false;
    bool values = false;
};

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
            throw Failure(Exit::Absent, branch + parameter.name + ": no object here has that parameter", asked.name);
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
        if (failure.exit() != Exit::Absent || other.empty()) {
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

std::vector<Object> answer(const Arguments &arguments) {
    std::vector<Object> objects = objectsToRead(arguments.words);
    if (arguments.defaults && (arguments.leaf || !arguments.where.empty())) {
        throw Usage("--defaults goes with neither --leaf nor --where");
    }
    if (!arguments.where.empty()) {
        if (objects.size() > 1) {
            throw Usage("--where goes with one object");
        }
        for (const std::string &word : arguments.where) {
            objects.front().filters.push_back(assignment(word));
        }
    }
    const Reading plain = arguments.leaf ? Reading::Leaf : Reading::Whole;
    std::vector<Object> result = !arguments.where.empty()
                                     ? matching(objects.front(), arguments.leaf)
                                     : getObjects(objects, arguments.defaults ? Reading::Defaults : plain);
    for (const Object &object : objects) {
        checkAnswered(object, result);
    }
    return result;
}

Report run(const Arguments &arguments) {
    Report result{Json::object(), {}, {}, {}};
    for (const Object &object : answer(arguments)) {
        Json &parameters = result.json[object.name];
        parameters = parameters.is_null() ? Json::object() : parameters;
        if (object.parameters.empty()) {
            result.table.rows.push_back({{withDot(object.name)}, {}});
        }
        for (const Parameter &parameter : object.parameters) {
            put(parameters, parameter.name, typed(parameter.name, parameter.value));
            result.table.rows.push_back({{withDot(object.name) + parameter.name}, {parameter.value}});
            if (arguments.values) {
                result.raw += parameter.value + "\n";
            }
        }
    }
    return result;
}

Run define(CLI::App &command) {
    const auto arguments = std::make_shared<Arguments>();
    addArguments(command, "OBJECT", arguments->words, "[PARAM...]",
                 "An object, the names of the parameters wanted (none: all), then more objects");
    addOption(command, "--where", arguments->where, "NAME=VALUE",
              "Only instances whose parameter has that value; repeatable");
    addFlag(command, "--leaf", arguments->leaf, "The object's own parameters, nothing below it");
    addFlag(command, "--defaults", arguments->defaults, "The values after a factory reset");
    addFlag(command, "--values", arguments->values, "The values alone, one a line");
    return [arguments] { return run(*arguments); };
}

} // namespace

const Noun kGetNoun = {"get", "Read objects or parameters",
                       "Device.IP.Interface.1 Status Name\n"
                       "Device.Hosts.Host --where Active=true HostName IPAddress\n"
                       "Device.WiFi.Radio.1 --leaf --json\n"
                       "Device.WiFi.Radio.1.Channel --values",
                       define};

} // namespace cli
