// SPDX-License-Identifier: MIT
#include "caltofal/object_words.h"

#include "pages/checked.h"
#include "pages/failure.h"
#include "pages/text.h"

namespace cli {

using namespace pages;

namespace {

bool beginsObject(const std::string &word) {
    return word.starts_with("Device.") || word.starts_with("InternetGatewayDevice.");
}

// "Device.WiFi.Radio.1.Channel=6": the object of it and the rest.
std::pair<std::string, std::string> splitPath(const std::string &word) {
    const size_t dot = word.rfind('.', word.find('='));
    return {word.substr(0, dot + 1), word.substr(dot + 1)};
}

Object &startObject(std::vector<Object> &objects, const std::string &path) {
    return objects.emplace_back(Object{checkedPath(path)});
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
            objects.back().parameters.push_back({checkedName(word, word)});
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
            objects.back().parameters.push_back(assignment(rest));
        } else if (beginsObject(word) || (objects.empty() && !assigns)) {
            startObject(objects, word);
        } else if (objects.empty()) {
            throw Usage("\"" + word + "\" stands before any object");
        } else {
            objects.back().parameters.push_back(assignment(word));
        }
    }
    for (const Object &object : objects) {
        refuseStar(object.name);
    }
    return objects;
}

} // namespace cli
