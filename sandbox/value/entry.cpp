// SPDX-License-Identifier: MIT
#include "value/entry.h"

#include "value/escape.h"
#include "value/path.h"

#include <unordered_map>

namespace sandbox {
namespace {

std::string shown(std::string_view path) {
    const std::string_view front = pathAtFront(path);
    return front.empty() ? "what stands there" : quotedShort(front) + (front.size() < path.size() ? "..." : "");
}

} // namespace

void refuseDuplicates(const Entries &entries, const std::string &file) {
    std::unordered_map<std::string, size_t> lines;
    for (const Entry &entry : entries) {
        const auto [first, added] = lines.emplace(entry.fullPath(), entry.line);
        if (!added) {
            throw FileError(file, entry.line,
                            entry.fullPath() + " was already given in line " + std::to_string(first->second));
        }
    }
}

Entry entryOf(std::string_view path) {
    const bool pattern = path.find(kAnyInstance) != std::string_view::npos;
    const size_t dot = path.rfind('.');
    if (dot == std::string_view::npos) {
        throw std::invalid_argument("expected a path: there is no dot");
    }
    Entry entry{};
    entry.path = path.substr(0, dot + 1);
    entry.name = path.substr(dot + 1);
    if (pattern ? !isPattern(entry.path) : !keyOf(entry.path).has_value()) {
        throw std::invalid_argument(shown(entry.path) + " is not an object path");
    }
    if (!entry.name.empty() && !isName(entry.name)) {
        throw std::invalid_argument(shown(path) + " is not the path of a parameter");
    }
    if (entry.name.empty()) {
        entry.kind = pattern ? Entry::Kind::TemplateObject : Entry::Kind::Object;
    } else {
        entry.kind = pattern ? Entry::Kind::TemplateParameter : Entry::Kind::Parameter;
    }
    return entry;
}

} // namespace sandbox
