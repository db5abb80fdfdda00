// SPDX-License-Identifier: MIT
#include "exchange/dump/known.h"

#include "exchange/demo.h"
#include "exchange/gateway_file.h"
#include "value/path.h"

#include <functional>
#include <set>
#include <unordered_map>

namespace sandbox {
namespace {

struct Hash {
    using is_transparent = void; // NOLINT(readability-identifier-naming): the name that containers look for
    size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

class Known {
  public:
    static const Known &instance() {
        static const Known known;
        return known;
    }

    std::unordered_map<std::string, Definition, Hash, std::equal_to<>> parameters;
    std::unordered_map<std::string, bool, Hash, std::equal_to<>> tables;
    std::set<std::string, std::less<>> tops;
    Entries templates; // as declared, each once

  private:
    Known() {
        // The demo with everything in it comes first; of two declarations the first one holds.
        const Demo *const home = findDemo("home");
        learn(*home);
        for (const Demo &demo : demos()) {
            if (&demo != home) {
                learn(demo);
            }
        }
    }

    void learn(const Demo &demo) {
        for (const Entry &entry : readGatewayFile(demo.text, std::string(demo.name))) {
            tops.emplace(components(entry.path)[entry.path == "Device." ? 0 : 1]);
            const bool pattern =
                entry.kind == Entry::Kind::TemplateObject || entry.kind == Entry::Kind::TemplateParameter;
            if (pattern && seen_.insert(entry.fullPath()).second) {
                templates.push_back(entry);
            }
            if (entry.kind == Entry::Kind::TemplateObject) {
                tables.emplace(entry.path, entry.writable.value_or(false));
            } else if (entry.type) {
                parameters.try_emplace(
                    patternOf(entry.path) + entry.name,
                    Definition{*entry.type, entry.writable.value_or(false), entry.fallback.value_or("")});
            }
        }
    }

    std::set<std::string> seen_;
};

} // namespace

const Definition *knownParameter(std::string_view pattern) {
    const auto &parameters = Known::instance().parameters;
    const auto found = parameters.find(pattern);
    return found == parameters.end() ? nullptr : &found->second;
}

std::optional<bool> knownTable(std::string_view pattern) {
    const auto &tables = Known::instance().tables;
    const auto found = tables.find(pattern);
    return found == tables.end() ? std::nullopt : std::optional(found->second);
}

Entries knownInstances(std::string_view table) {
    const std::string pattern = patternOf(table) + std::string(kAnyInstance) + ".";
    Entries entries;
    for (const Entry &known : Known::instance().templates) {
        if (!known.path.starts_with(pattern)) {
            continue;
        }
        Entry &entry = entries.emplace_back(known);
        entry.path = std::string(table) + known.path.substr(patternOf(table).size());
        entry.guessed = true;
    }
    return entries;
}

bool isKnownTop(std::string_view name) {
    return name != "Device" && Known::instance().tops.contains(name);
}

} // namespace sandbox
