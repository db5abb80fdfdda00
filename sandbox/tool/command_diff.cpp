// SPDX-License-Identifier: MIT
#include "exchange/gateway_export.h"
#include "tool/command.h"
#include "tool/differences.h"
#include "value/path.h"

#include <iostream>
#include <map>

namespace sandbox {
namespace {

// Sorts an object's parameters between it and the objects below it.
constexpr char kBeforeObjects = '\x01';

struct Shown {
    std::string path;
    std::optional<std::string> value; // of a parameter

    bool operator==(const Shown &) const = default;
};

// Parameters, and objects without any, by what sorts them as the model does.
using Shape = std::map<std::string, Shown>;

Shape runningShape(Database &database) {
    const Transaction transaction(database, Transaction::Kind::Read);
    Shape shape;
    for (const Entry &entry : exportEntries(database, "", View::Running)) {
        if (entry.kind == Entry::Kind::Parameter || entry.kind == Entry::Kind::Object) {
            shape.emplace(*keyOf(entry.path) + kBeforeObjects + entry.name, Shown{entry.fullPath(), entry.value});
        }
    }
    return shape;
}

std::vector<Difference> compare(const Shape &first, const Shape &second) {
    std::vector<Difference> differences;
    auto before = first.begin();
    auto after = second.begin();
    while (before != first.end() || after != second.end()) {
        if (after == second.end() || (before != first.end() && before->first < after->first)) {
            differences.push_back({Difference::Kind::Removed, before->second.path, before->second.value, std::nullopt});
            ++before;
        } else if (before == first.end() || after->first < before->first) {
            differences.push_back({Difference::Kind::Added, after->second.path, std::nullopt, after->second.value});
            ++after;
        } else {
            if (!(before->second == after->second)) {
                differences.push_back(
                    {Difference::Kind::Changed, before->second.path, before->second.value, after->second.value});
            }
            ++before;
            ++after;
        }
    }
    return differences;
}

std::vector<Difference> pending(Database &database) {
    const Transaction transaction(database, Transaction::Kind::Read);
    return pendingDifferences(database);
}

struct DiffOptions {
    std::string first, second;
    bool secrets = false;
};

} // namespace

void addDiff(Command &root, Tool &tool) {
    auto options = makeOptions<DiffOptions>();
    Command command =
        root.add("diff", "Compare the running values of two gateways, or the running with the stored values of one");
    command.word("A", options->first, "The gateway", Need::Required);
    command.word("B", options->second, "The gateway to compare it with");
    command.flag("--show-secrets", options->secrets, kShowSecrets);
    command.footer(
        "Exit code 1 when they differ.\n\n"
        "Examples:\n  caltofal-sandbox diff home lab\n  caltofal-sandbox diff home     what a boot would change");
    command.runs([&tool, options] {
        const std::unique_ptr<Database> first = tool.open(options->first);
        const std::vector<Difference> differences =
            options->second.empty() ? pending(*first)
                                    : compare(runningShape(*first), runningShape(*tool.open(options->second)));
        printDifferences(differences, options->secrets, std::cout);
        tool.exitCode = differences.empty() ? kDone : kFailed;
    });
}

} // namespace sandbox
