// SPDX-License-Identifier: MIT
#include "exchange/dump/alias.h"

#include "value/path.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace sandbox {
namespace {

bool hasAlias(const DumpRow &row) {
    return row.path.find(".[") != std::string::npos;
}

struct Table {
    std::map<std::string, uint32_t, std::less<>> numbers; // by alias
    uint32_t highest = 0;
};

class Aliases {
  public:
    void learn(const DumpRow &row) {
        std::string prefix;
        for (const std::string_view component : components(row.path)) {
            if (const std::optional<uint32_t> number = instanceOf(component)) {
                Table &table = tables_[prefix];
                table.highest = std::max(table.highest, *number);
                if (row.value && row.path == prefix + std::string(component) + ".Alias") {
                    table.numbers.emplace(*row.value, *number);
                }
            }
            prefix += std::string(component) + ".";
        }
    }

    // Aliases may hold dots.
    std::string numbered(const std::string &path) {
        std::string result;
        for (size_t at = 0; at < path.size();) {
            const size_t end = path[at] == '[' ? path.find(']', at) : std::string::npos;
            if (end != std::string::npos) {
                result += std::to_string(numberOf(result, path.substr(at + 1, end - at - 1)));
                at = end + 1;
            } else {
                const size_t dot = std::min(path.find('.', at), path.size() - 1);
                result += path.substr(at, dot + 1 - at);
                at = dot + 1;
            }
        }
        return result;
    }

  private:
    uint32_t numberOf(const std::string &prefix, const std::string &alias) {
        Table &table = tables_[prefix];
        const auto [found, added] = table.numbers.emplace(alias, table.highest + 1);
        table.highest += added ? 1 : 0;
        return found->second;
    }

    std::unordered_map<std::string, Table> tables_; // by path, with a final dot
};

} // namespace

void numberAliases(Dump &dump) {
    if (std::none_of(dump.rows.begin(), dump.rows.end(), hasAlias)) {
        return;
    }
    Aliases aliases;
    for (const DumpRow &row : dump.rows) {
        if (!hasAlias(row)) {
            aliases.learn(row);
        }
    }
    for (DumpRow &row : dump.rows) {
        if (hasAlias(row)) {
            std::string path = aliases.numbered(row.path);
            dump.report.count(Reason::AliasNumbered, row.path + " is " + path);
            row.path = std::move(path);
        }
    }
}

} // namespace sandbox
