// SPDX-License-Identifier: MIT
#include "value/entry.h"

#include "value/escape.h"
#include "value/path.h"

namespace sandbox {

Entry entryOf(std::string_view path) {
    const bool pattern = path.find(kAnyInstance) != std::string_view::npos;
    const size_t dot = path.rfind('.');
    if (dot == std::string_view::npos) {
        throw std::invalid_argument(quotedShort(path) + " is not a path: it has no dot");
    }
    Entry entry{};
    entry.path = path.substr(0, dot + 1);
    entry.name = path.substr(dot + 1);
    if (pattern ? !isPattern(entry.path) : !keyOf(entry.path).has_value()) {
        throw std::invalid_argument(quotedShort(entry.path) + " is not an object path");
    }
    if (!entry.name.empty() && !isName(entry.name)) {
        throw std::invalid_argument(quotedShort(entry.name) + " is not a parameter name");
    }
    if (entry.name.empty()) {
        entry.kind = pattern ? Entry::Kind::TemplateObject : Entry::Kind::Object;
    } else {
        entry.kind = pattern ? Entry::Kind::TemplateParameter : Entry::Kind::Parameter;
    }
    return entry;
}

} // namespace sandbox
