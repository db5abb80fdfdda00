// SPDX-License-Identifier: MIT
#include "pages/objects/words.h"

#include "caltofal.h"
#include "pages/failure.h"

namespace cli {
namespace {

constexpr size_t kNameMax = sizeof(ObjectNode::name) - 1;
constexpr size_t kValueMax = PARAM_VALUE_SIZE - 1;

bool beginsObject(const std::string &word) {
    return word.starts_with("Device.");
}

void checkLength(const std::string &text, size_t most, const char *what) {
    if (text.size() > most) {
        throw Usage(what + (" \"" + text.substr(0, 40)) + "...\" has " + std::to_string(text.size()) +
                    " bytes: the most is " + std::to_string(most));
    }
}

const std::string &checkedName(const std::string &name, const std::string &word) {
    if (name.empty()) {
        throw Usage("\"" + word + "\" names no parameter");
    }
    checkLength(name, kNameMax, "parameter");
    return name;
}

// "Device.WiFi.Radio.1.Channel=6": the object of it and the rest.
std::pair<std::string, std::string> splitPath(const std::string &word) {
    const size_t dot = word.rfind('.', word.find('='));
    return {word.substr(0, dot + 1), word.substr(dot + 1)};
}

Object &startObject(std::vector<Object> &objects, const std::string &path) {
    return objects.emplace_back(Object{checkedPath(path), {}});
}

} // namespace

const std::string &checkedPath(const std::string &path) {
    if (path.empty()) {
        throw Usage("an object path is empty");
    }
    checkLength(path, kNameMax, "object path");
    return path;
}

Parameter assignment(const std::string &word) {
    const size_t equals = word.find('=');
    if (equals == std::string::npos) {
        throw Usage("\"" + word + "\" is not of the form NAME=VALUE");
    }
    Parameter result{checkedName(word.substr(0, equals), word), word.substr(equals + 1)};
    checkLength(result.value, kValueMax, "value");
    return result;
}

std::vector<Object> objectsToRead(const std::vector<std::string> &words) {
    std::vector<Object> objects;
    for (const std::string &word : words) {
        if (objects.empty() || beginsObject(word)) {
            startObject(objects, word);
        } else {
            objects.back().parameters.push_back({checkedName(word, word), {}});
        }
    }
    return objects;
}

std::vector<Object> objectsToChange(const std::vector<std::string> &words) {
    std::vector<Object> objects;
    for (const std::string &word : words) {
        const bool assigns = word.find('=') != std::string::npos;
        if (assigns && beginsObject(word)) {
            const auto [path, rest] = splitPath(word);
            if (objects.empty() || objects.back().name != path) {
                startObject(objects, path);
            }
            objects.back().parameters.push_back(assignment(rest));
        } else if (beginsObject(word) || (objects.empty() && !assigns)) {
            startObject(objects, word);
        } else if (objects.empty()) {
            throw Usage("\"" + word + "\" stands before any object");
        } else {
            objects.back().parameters.push_back(assignment(word));
        }
    }
    return objects;
}

} // namespace cli
