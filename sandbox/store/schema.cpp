// SPDX-License-Identifier: MIT
#include "store/schema.h"

#include "caltofal.h"
#include "value/refusal.h"

namespace sandbox {
namespace {

constexpr int64_t kApplicationId = 0x63617466; // "catf"
constexpr int64_t kVersion = 1;

constexpr const char *kTables = R"sql(
    PRAGMA application_id = 0x63617466;
    PRAGMA user_version = 1;

    -- Every object of the model. `key` (path.h) gives the model's order and makes each branch one range.
    CREATE TABLE object(
        id INTEGER PRIMARY KEY,
        key TEXT NOT NULL UNIQUE,
        parent INTEGER,                      -- NULL: a root
        kind INTEGER NOT NULL,               -- 0 plain, 1 table, 2 instance of a table
        presence INTEGER NOT NULL,           -- 1 running model, 2 stored model, 3 both
        writable INTEGER NOT NULL DEFAULT 0, -- tables: a set may add and delete instances
        last INTEGER NOT NULL DEFAULT 0      -- tables: highest instance number ever given
    );
    CREATE INDEX object_child ON object(parent, key);

    -- What values a parameter takes; shared by all parameters that agree in it.
    CREATE TABLE definition(
        id INTEGER PRIMARY KEY,
        type TEXT NOT NULL,
        writable INTEGER NOT NULL,
        fallback TEXT NOT NULL,              -- the default value
        UNIQUE(type, writable, fallback)
    );

    CREATE TABLE parameter(
        object INTEGER NOT NULL,
        position INTEGER NOT NULL,           -- declared order within the object
        name TEXT NOT NULL,
        definition INTEGER NOT NULL,
        running TEXT NOT NULL,
        pending TEXT,                        -- the stored value where it differs from the running one
        container INTEGER,                   -- of an instance's parameter: the table
        PRIMARY KEY(object, position)
    ) WITHOUT ROWID;
    CREATE UNIQUE INDEX parameter_name ON parameter(object, name);
    CREATE INDEX parameter_pending ON parameter(object) WHERE pending IS NOT NULL;

    -- What the instances of tables are made of.
    CREATE TABLE template_object(
        pattern TEXT PRIMARY KEY,            -- "Device.Hosts.Host.{i}."
        writable INTEGER NOT NULL            -- of a pattern that ends in "{i}.": the table's
    ) WITHOUT ROWID;
    CREATE TABLE template_parameter(
        pattern TEXT NOT NULL,
        position INTEGER NOT NULL,
        name TEXT NOT NULL,
        definition INTEGER NOT NULL,
        PRIMARY KEY(pattern, position),
        UNIQUE(pattern, name)
    ) WITHOUT ROWID;

    CREATE TABLE fault(
        id INTEGER PRIMARY KEY,
        object TEXT NOT NULL,                -- key; "" any
        operation TEXT NOT NULL,             -- "get", "set"; "" any
        code INTEGER,                        -- NULL: the request goes on
        late INTEGER NOT NULL,               -- milliseconds
        remaining INTEGER                    -- matching requests up to the one that is hit; NULL: every one is
    );
)sql";

// Made of a filled table, an index costs a fraction of one that grows with it.
constexpr const char *kFilter =
    "CREATE INDEX parameter_filter ON parameter(container, name, running) WHERE container IS NOT NULL";

int64_t pragma(Database &database, const char *sql) {
    Statement statement(database, sql);
    return statement.step() ? statement.integer(0) : -1;
}

} // namespace

void createSchema(Database &database, const std::function<void(Database &)> &fill) {
    database.execute(kTables);
    fill(database);
    database.execute(kFilter);
}

void checkSchema(Database &database, const std::string &file) {
    if (pragma(database, "PRAGMA application_id") != kApplicationId) {
        throw Refusal(CALTOFAL_STORE_FAILED, file + " is not the store of a gateway");
    }
    if (pragma(database, "PRAGMA user_version") != kVersion) {
        throw Refusal(CALTOFAL_STORE_FAILED, file + " was made by another version of the sandbox");
    }
}

} // namespace sandbox
