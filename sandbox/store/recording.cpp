// SPDX-License-Identifier: MIT
#include "store/recording.h"

namespace sandbox {
namespace {

// Most stores have none, and those that older versions made lack the table.
constexpr const char *kTable = "CREATE TABLE IF NOT EXISTS recording("
                               "name TEXT PRIMARY KEY, "
                               "code INTEGER, " // NULL: a file
                               "content TEXT NOT NULL) WITHOUT ROWID";

bool hasTable(Database &database) {
    return Statement(database, "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'recording'").step();
}

} // namespace

void keepRecording(Database &database, const Recording &recording) {
    database.execute(kTable);
    Statement(database, "INSERT OR REPLACE INTO recording(name, code, content) VALUES(?1, ?2, ?3)", recording.name,
              recording.exitCode, recording.content)
        .run();
}

std::vector<Recording> recordings(Database &database) {
    std::vector<Recording> result;
    if (!hasTable(database)) {
        return result;
    }
    Statement rows(database, "SELECT name, code, content FROM recording ORDER BY name");
    while (rows.step()) {
        Recording &one = result.emplace_back();
        one.name = rows.text(0);
        one.exitCode = rows.isNull(1) ? std::nullopt : std::optional(static_cast<int>(rows.integer(1)));
        one.content = rows.text(2);
    }
    return result;
}

void forgetRecordings(Database &database) {
    if (hasTable(database)) {
        database.execute("DELETE FROM recording");
    }
}

} // namespace sandbox
