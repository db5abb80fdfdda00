// SPDX-License-Identifier: MIT
#include "store/boot.h"

#include "store/schema.h"
#include "value/path.h"

#include <algorithm>

namespace sandbox {
namespace {

// Instances that come and go; what is below them comes and goes with them and is not listed.
void addObjectDifferences(Database &database, std::vector<Difference> &differences) {
    Statement objects(database, "SELECT o.key, o.presence FROM object o LEFT JOIN object h ON h.id = o.parent "
                                "WHERE o.presence <> 3 AND coalesce(h.presence, 3) = 3 ORDER BY o.key");
    while (objects.step()) {
        const bool added = objects.integer(1) == kStored;
        differences.push_back({added ? Difference::Kind::Added : Difference::Kind::Removed, pathOf(objects.text(0)),
                               std::nullopt, std::nullopt});
    }
}

void addValueDifferences(Database &database, std::vector<Difference> &differences) {
    Statement values(database, "SELECT o.key, p.name, p.running, p.pending FROM parameter p CROSS JOIN object o "
                               "WHERE p.pending IS NOT NULL AND o.id = p.object AND o.presence = 3 "
                               "ORDER BY o.key, p.position");
    while (values.step()) {
        differences.push_back({Difference::Kind::Changed, pathOf(values.text(0)) + "." + std::string(values.text(1)),
                               std::string(values.text(2)), std::string(values.text(3))});
    }
}

} // namespace

std::vector<Difference> pendingDifferences(Database &database) {
    std::vector<Difference> differences;
    addObjectDifferences(database, differences);
    addValueDifferences(database, differences);
    return differences;
}

void boot(Database &database) {
    database.execute("DELETE FROM parameter WHERE object IN (SELECT id FROM object WHERE presence = 1);"
                     "DELETE FROM object WHERE presence = 1;"
                     "UPDATE object SET presence = 3 WHERE presence = 2;"
                     "UPDATE parameter SET running = pending, pending = NULL WHERE pending IS NOT NULL;");
}

} // namespace sandbox
