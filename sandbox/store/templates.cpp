// SPDX-License-Identifier: MIT
#include "store/templates.h"

#include "value/path.h"

#include <algorithm>

namespace sandbox {
namespace {

// What all patterns that can match the key begin with: its components up to the first instance number.
std::string_view fixedPrefix(std::string_view key) {
    size_t length = 0;
    for (const std::string_view component : components(key)) {
        if (component.empty() || instanceOf(component)) {
            break;
        }
        length += component.size() + 1;
    }
    return key.substr(0, length);
}

} // namespace

Templates::Templates(Database &database, std::string_view key) {
    const std::string prefix(fixedPrefix(key));
    const std::string end = prefix.empty() ? "\xff" : keyEnd(prefix);
    Statement objects(database, "SELECT pattern, writable FROM template_object WHERE pattern >= ?1 AND pattern < ?2",
                      prefix, end);
    while (objects.step()) {
        objects_[std::string(objects.text(0))].writable = objects.integer(1) != 0;
    }
    Statement parameters(
        database,
        "SELECT pattern, name, definition FROM template_parameter WHERE pattern >= ?1 AND pattern < ?2 "
        "ORDER BY pattern, position",
        prefix, end);
    while (parameters.step()) {
        objects_[std::string(parameters.text(0))].parameters.push_back(
            {std::string(parameters.text(1)), parameters.integer(2)});
    }
}

std::vector<TemplateMatch> Templates::matching(std::string_view key) const {
    std::vector<TemplateMatch> matches;
    const std::vector<std::string_view> actual = key.empty() ? std::vector<std::string_view>() : components(key);
    const std::string_view prefix = fixedPrefix(key);
    for (auto at = objects_.lower_bound(prefix); at != objects_.end() && at->first.starts_with(prefix); ++at) {
        std::vector<std::string_view> pattern = components(at->first);
        const bool longEnough = pattern.size() >= actual.size();
        if (longEnough && std::equal(actual.begin(), actual.end(), pattern.begin(),
                                     [](auto is, auto wanted) { return componentMatches(wanted, is); })) {
            pattern.erase(pattern.begin(), pattern.begin() + static_cast<ptrdiff_t>(actual.size()));
            matches.push_back({at->first, &at->second, std::move(pattern)});
        }
    }
    // "{" sorts after every digit and letter, so that going backwards meets "{i}" before an instance number.
    std::reverse(matches.begin(), matches.end());
    return matches;
}

} // namespace sandbox
