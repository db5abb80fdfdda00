// SPDX-License-Identifier: MIT
#include "store/model.h"

#include "value/path.h"

#include <algorithm>
#include <cstdlib>

namespace sandbox {
namespace {

constexpr std::string_view kCountSuffix = "NumberOfEntries";

// The parameter that tells a table's number of instances.
struct Count {
    int64_t table;
    int64_t object; // that has the parameter
    ParameterRow parameter;
};

std::optional<Count> findCount(Database &database, std::string_view tableKey) {
    const std::optional<ObjectRow> table = findObject(database, tableKey);
    if (!table || !table->parent) {
        return std::nullopt;
    }
    const std::string name = std::string(lastComponent(tableKey)) + std::string(kCountSuffix);
    std::optional<ParameterRow> parameter = findParameter(database, *table->parent, name);
    return parameter ? std::optional(Count{table->id, *table->parent, std::move(*parameter)}) : std::nullopt;
}

std::string childKey(std::string_view key, std::string_view component) {
    const std::optional<uint32_t> number = instanceOf(component);
    return number ? instanceKey(key, *number) : std::string(key) + std::string(component) + ".";
}

// A count that is not kept yet may hold any text.
std::string shifted(std::string_view count, int by) {
    return std::to_string(std::max(0, std::atoi(std::string(count).c_str()) + by));
}

std::optional<std::string> pendingOf(std::string_view running, std::string_view stored) {
    return running == stored ? std::nullopt : std::optional<std::string>(stored);
}

} // namespace

std::optional<ObjectRow> findObject(Database &database, std::string_view key) {
    Statement find(database, "SELECT id, parent, kind, presence, writable, last FROM object WHERE key = ?1", key);
    if (!find.step()) {
        return std::nullopt;
    }
    const std::optional<int64_t> parent = find.isNull(1) ? std::nullopt : std::optional(find.integer(1));
    return ObjectRow{find.integer(0),
                     parent,
                     static_cast<ObjectKind>(find.integer(2)),
                     static_cast<int>(find.integer(3)),
                     find.integer(4) != 0,
                     static_cast<uint32_t>(find.integer(5))};
}

std::optional<ParameterRow> findParameter(Database &database, int64_t object, std::string_view name) {
    Statement find(database,
                   "SELECT position, definition, running, pending FROM parameter WHERE object = ?1 AND name = ?2",
                   object, name);
    if (!find.step()) {
        return std::nullopt;
    }
    ParameterRow row{find.integer(0), find.integer(1), std::string(find.text(2)), std::nullopt};
    if (!find.isNull(3)) {
        row.pending = find.text(3);
    }
    return row;
}

bool isCountName(std::string_view name) {
    return name.size() > kCountSuffix.size() && name.ends_with(kCountSuffix);
}

bool isKeptCount(Database &database, std::string_view objectKey, std::string_view name) {
    if (!isCountName(name)) {
        return false;
    }
    name.remove_suffix(kCountSuffix.size());
    const std::optional<ObjectRow> table = findObject(database, std::string(objectKey) + std::string(name) + ".");
    return table && table->kind == ObjectKind::Table;
}

int64_t Model::ensureObject(std::string_view key, int presence) {
    return ensure(key, presence).id;
}

Model::Made Model::ensure(std::string_view key, int presence) {
    const std::optional<ObjectRow> row = findObject(database_, key);
    return row ? Made{row->id, row->presence} : create(key, presence);
}

Model::Made Model::create(std::string_view key, int presence) {
    const std::string_view holder = parentKey(key);
    const std::optional<uint32_t> instance = instanceOf(lastComponent(key));
    std::optional<int64_t> parent;
    if (!holder.empty()) {
        const Made made = ensure(holder, presence);
        if (const std::optional<ObjectRow> row = findObject(database_, key)) {
            return {row->id, row->presence}; // the holder's templates made it
        }
        parent = made.id;
        presence &= made.presence;
    }
    if (instance) {
        makeTable(holder, *instance);
    }
    Statement(database_, "INSERT INTO object(key, parent, kind, presence) VALUES(?1, ?2, ?3, ?4)", key, parent,
              static_cast<int>(instance ? ObjectKind::Instance : ObjectKind::Plain), presence)
        .run();
    const Made object{database_.lastRowId(), presence};
    if (instance) {
        bumpCount(holder, (presence & kRunning) != 0 ? 1 : 0, (presence & kStored) != 0 ? 1 : 0);
    }
    const std::vector<TemplateMatch> matches = templates_.matching(key);
    addTemplateParameters(key, object.id, matches);
    createContents(key, object, matches);
    return object;
}

void Model::addTemplateParameters(std::string_view key, int64_t object, const std::vector<TemplateMatch> &matches) {
    for (const TemplateMatch &match : matches) {
        if (!match.remainder.empty()) {
            continue;
        }
        for (const TemplateParameter &parameter : match.object->parameters) {
            if (const auto row = findParameter(database_, object, parameter.name)) {
                setDefinition(object, *row, parameter.definition);
            } else {
                addParameter(key, object, parameter.name, parameter.definition);
            }
        }
    }
}

void Model::createContents(std::string_view key, const Made &object, const std::vector<TemplateMatch> &matches) {
    for (const TemplateMatch &match : matches) {
        if (match.remainder.empty()) {
            continue;
        }
        if (match.remainder.front() == kAnyInstance) {
            makeTable(key, 0);
            if (match.remainder.size() == 1) {
                setWritable(object.id, match.object->writable);
            }
        } else {
            ensure(childKey(key, match.remainder.front()), object.presence);
        }
    }
}

void Model::makeTable(std::string_view key, uint32_t last) {
    Statement(database_, "UPDATE object SET kind = ?2 WHERE key = ?1 AND kind = ?3", key,
              static_cast<int>(ObjectKind::Table), static_cast<int>(ObjectKind::Plain))
        .run();
    if (database_.changes() != 0) {
        writeCount(key);
    }
    Statement(database_, "UPDATE object SET last = ?2 WHERE key = ?1 AND last < ?2", key, static_cast<int64_t>(last))
        .run();
}

void Model::setWritable(int64_t table, bool writable) {
    Statement(database_, "UPDATE object SET writable = ?2 WHERE id = ?1", table, writable).run();
}

void Model::addParameter(std::string_view key, int64_t object, std::string_view name, int64_t definition) {
    const std::string &fallback = definitions_.get(definition).fallback;
    addParameter(key, object, name, definition, fallback, fallback);
}

void Model::addParameter(std::string_view key, int64_t object, std::string_view name, int64_t definition,
                         std::string_view running, std::string_view stored) {
    if (object != filling_.object) {
        Statement find(database_,
                       "SELECT (SELECT coalesce(max(position) + 1, 0) FROM parameter WHERE object = ?1), "
                       "CASE kind WHEN 2 THEN parent END FROM object WHERE id = ?1",
                       object);
        find.step();
        filling_ = {object, find.integer(0), find.isNull(1) ? std::nullopt : std::optional(find.integer(1))};
    }
    // Without a SELECT in it, which SQLite would take a temporary table for.
    Statement(database_,
              "INSERT INTO parameter(object, position, name, definition, running, pending, container) "
              "VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7)",
              object, filling_.position, name, definition, running, pendingOf(running, stored), filling_.container)
        .run();
    ++filling_.position;
    if (isKeptCount(database_, key, name)) {
        writeCount(std::string(key) + std::string(name.substr(0, name.size() - kCountSuffix.size())) + ".");
    }
}

void Model::setDefinition(int64_t object, const ParameterRow &parameter, int64_t definition) {
    Statement(database_, "UPDATE parameter SET definition = ?3 WHERE object = ?1 AND position = ?2", object,
              parameter.position, definition)
        .run();
}

void Model::setValue(int64_t object, const ParameterRow &parameter, std::string_view running, std::string_view stored) {
    Statement(database_, "UPDATE parameter SET running = ?3, pending = ?4 WHERE object = ?1 AND position = ?2", object,
              parameter.position, running, pendingOf(running, stored))
        .run();
}

void Model::shapeLike(std::string_view key, std::string_view sibling, int presence) {
    Statement objects(database_, "SELECT id, key, kind, writable FROM object WHERE key >= ?1 AND key < ?2 ORDER BY key",
                      sibling, keyEnd(sibling));
    while (objects.step()) {
        const std::string below(objects.text(1).substr(sibling.size()));
        const std::vector<std::string_view> parts = components(below);
        if (std::any_of(parts.begin(), parts.end(), [](auto part) { return instanceOf(part).has_value(); })) {
            continue;
        }
        const std::string copy = std::string(key) + below;
        const int64_t object = ensureObject(copy, presence);
        if (static_cast<ObjectKind>(objects.integer(2)) == ObjectKind::Table) {
            makeTable(copy, 0);
            setWritable(object, objects.integer(3) != 0);
        }
        Statement parameters(database_, "SELECT name, definition FROM parameter WHERE object = ?1 ORDER BY position",
                             objects.integer(0));
        while (parameters.step()) {
            const std::string name(parameters.text(0));
            if (!findParameter(database_, object, name)) {
                addParameter(copy, object, name, parameters.integer(1));
            }
        }
    }
}

void Model::removeInstance(std::string_view key, int layers) {
    filling_ = {};
    const std::string end = keyEnd(key);
    const int left = findObject(database_, key)->presence & layers;
    Statement(database_, "UPDATE object SET presence = presence & ~?3 WHERE key >= ?1 AND key < ?2", key, end, layers)
        .run();
    Statement(database_,
              "DELETE FROM parameter WHERE object IN "
              "(SELECT id FROM object WHERE key >= ?1 AND key < ?2 AND presence = 0)",
              key, end)
        .run();
    Statement(database_, "DELETE FROM object WHERE key >= ?1 AND key < ?2 AND presence = 0", key, end).run();
    bumpCount(parentKey(key), (left & kRunning) != 0 ? -1 : 0, (left & kStored) != 0 ? -1 : 0);
}

void Model::applyTemplate(std::string_view pattern) {
    const std::vector<std::string_view> parts = components(pattern);
    applyBelow("", parts, templates_.all().find(pattern)->second);
}

void Model::applyBelow(std::string_view key, std::span<const std::string_view> remainder,
                       const TemplateObject &object) {
    if (remainder.empty()) {
        addTemplateParameters(key, ensure(key, kEverywhere).id, {{{}, &object, {}}});
        return;
    }
    if (remainder.front() != kAnyInstance) {
        const std::string child = childKey(key, remainder.front());
        ensure(child, kEverywhere);
        applyBelow(child, remainder.subspan(1), object);
        return;
    }
    makeTable(key, 0);
    const int64_t table = ensure(key, kEverywhere).id;
    if (remainder.size() == 1) {
        setWritable(table, object.writable);
    }
    Statement instances(database_, "SELECT key FROM object WHERE parent = ?1 ORDER BY key", table);
    while (instances.step()) {
        applyBelow(std::string(instances.text(0)), remainder.subspan(1), object);
    }
}

void Model::bumpCount(std::string_view tableKey, int running, int stored) {
    if (const auto count = findCount(database_, tableKey)) {
        const ParameterRow &row = count->parameter;
        setValue(count->object, row, shifted(row.running, running), shifted(row.pending.value_or(row.running), stored));
    }
}

void Model::writeCount(std::string_view tableKey) {
    if (const auto count = findCount(database_, tableKey)) {
        Statement sums(database_,
                       "SELECT coalesce(sum(presence & 1), 0), coalesce(sum(presence >> 1), 0) FROM object "
                       "WHERE parent = ?1 AND kind = 2",
                       count->table);
        sums.step();
        setValue(count->object, count->parameter, std::to_string(sums.integer(0)), std::to_string(sums.integer(1)));
    }
}

} // namespace sandbox
