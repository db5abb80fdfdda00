// SPDX-License-Identifier: MIT
#include "caltofal/object_words.h"

#include "caltofal/assigned_words.h"
#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/text.h"

namespace cli {

using namespace pages;

namespace {

// "Device.WiFi.Radio.1.Channel=6": the object of it and the rest.
std::pair<std::string, std::string> splitPath(const std::string &word) {
    const size_t dot = word.rfind('.', word.find('='));
    return {word.substr(0, dot + 1), word.substr(dot + 1)};
}

Object &startObject(std::vector<Object> &objects, const std::string &path) {
    return objects.emplace_back(Object{checkedPath(path)});
}

// Throws Usage for "Device.WiFi.SSID.1.SSID: attic": a value behind the name, without showing it. The name of an
// instance, in brackets, may hold any byte.
void refuseColon(const std::string &path) {
    const size_t end = path.find_first_of(": [");
    if (end != std::string::npos && path[end] != '[') {
        throw Usage("expected \"=\" after " + path.substr(0, end) + ", not " + inQuotes(path.substr(end, 1)));
    }
}

// What stands before the next word of a change: "SSID=...", or an object, which may be meant for a parameter's path.
std::string lastWord(const Object &object) {
    return object.parameters.empty() ? object.name + ", or PATH=VALUE where that is a parameter"
                                     : withoutValue(object.parameters.back().name + "=");
}

} // namespace

void refuseStar(const std::string &path) {
    if (path.starts_with("*.") || path.ends_with(".*") || path.find(".*.") != std::string::npos) {
        throw Usage(inQuotes(path) + ": \"*\" is for get alone");
    }
}

std::vector<Object> objectsToRead(const std::vector<std::string> &words) {
    std::vector<Object> objects;
    for (const std::string &word : words) {
        if (objects.empty() || beginsObject(word)) {
            startObject(objects, word);
        } else {
            objects.back().parameters.push_back({checkedName(word)});
        }
    }
    return objects;
}

std::vector<Object> objectsToChange(const std::vector<std::string> &words) {
    std::vector<Object> objects;
    for (const std::string &word : words) {
        const bool assigns = word.find('=') != std::string::npos;
        const bool first = objects.empty() && word.find('.') < word.find('=');
        if (assigns && (first || beginsObject(word))) {
            const auto [path, rest] = splitPath(word);
            if (objects.empty() || objects.back().name != path) {
                startObject(objects, path);
            }
            objects.back().parameters.push_back(assignment(rest, path));
        } else if (beginsObject(word) || (objects.empty() && !assigns)) {
            refuseColon(word);
            startObject(objects, word);
        } else if (objects.empty()) {
            throw Usage(inQuotes(withoutValue(word)) + " stands before any object");
        } else {
            objects.back().parameters.push_back(assignment(word, lastWord(objects.back())));
        }
    }
    for (const Object &object : objects) {
        refuseStar(object.name);
    }
    return objects;
}

} // namespace cli
