// SPDX-License-Identifier: MIT
#include "store/reader.h"

#include "caltofal.h"
#include "store/known_parameter.h"
#include "store/model.h"
#include "store/nature.h"
#include "value/path.h"
#include "value/refusal.h"
#include "value/secret.h"

#include <algorithm>
#include <set>

namespace sandbox {
namespace {

// After a key, sorts between the object and everything below it.
constexpr char kFirstBelow = '\x01';

using Names = std::vector<std::string>;

// Which objects a query visits. ?1 and ?2 are bound to what `Scope` says.
enum class Scope {
    Own,       // ?1 the object's key
    Instances, // ?1 the table's id
    Branch,    // ?1 the first key, ?2 the first one after the branch
};

const char *condition(Scope scope) {
    switch (scope) {
    case Scope::Own:
        return "o.key = ?1 AND ?2 IS NULL";
    case Scope::Instances:
        return "o.parent = ?1 AND ?2 IS NULL";
    case Scope::Branch:
        break;
    }
    return "o.key >= ?1 AND o.key < ?2";
}

// CROSS JOIN keeps the objects outside, so that their index gives the order and a query costs what it visits.
std::string query(Scope scope, bool defaults, size_t nameCount) {
    std::string sql = "SELECT o.key, p.name, p.position, p.running";
    sql += defaults ? ", d.fallback FROM object o CROSS JOIN parameter p CROSS JOIN definition d"
                    : " FROM object o CROSS JOIN parameter p";
    sql += " WHERE p.object = o.id AND o.presence <> 2 AND ";
    sql += condition(scope);
    sql += defaults ? " AND d.id = p.definition" : "";
    for (size_t i = 0; i < nameCount; ++i) {
        sql += i == 0 ? " AND p.name IN (?3" : ", ?" + std::to_string(3 + i);
    }
    return sql + (nameCount == 0 ? " ORDER BY o.key, p.position" : ") ORDER BY o.key");
}

class Reader {
  public:
    Reader(Database &database, const GetRequest &request, const Emit &emit)
        : database_(database), request_(request), emit_(emit), path_(shownPath(request.path)) {}

    void run() {
        const std::optional<std::string> key = keyOf(request_.path);
        const std::optional<ObjectRow> object = key ? findObject(database_, *key) : std::nullopt;
        if (!object || (object->presence & kRunning) == 0) {
            throw Refusal(CALTOFAL_ABSENT_OBJECT, noSuchObject(database_, path_));
        }
        if (!request_.filters.empty()) {
            for (const std::string &match : matches(*key, *object)) {
                visit(Scope::Branch, match, keyEnd(match), request_.names);
            }
        } else if (request_.leaf && object->kind == ObjectKind::Table) {
            visit(Scope::Instances, object->id, nullptr, request_.names);
        } else if (request_.leaf) {
            visit(Scope::Own, *key, nullptr, request_.names);
        } else if (request_.names.empty()) {
            visit(Scope::Branch, *key, keyEnd(*key), request_.names);
        } else {
            // What the object has itself is not sought below it.
            visit(Scope::Own, *key, nullptr, request_.names);
            if (const Names missing = missingNames(); !missing.empty()) {
                visit(Scope::Branch, *key + kFirstBelow, keyEnd(*key), missing);
            }
        }
    }

    // The names that nothing visited has.
    Names missingNames() const {
        Names missing;
        std::copy_if(request_.names.begin(), request_.names.end(), std::back_inserter(missing),
                     [this](const std::string &name) { return !found_.contains(name); });
        return missing;
    }

  private:
    struct Row {
        int64_t position;
        std::string name, value;
    };

    template <class First, class Second>
    void visit(Scope scope, const First &first, const Second &second, const Names &names) {
        Statement rows(database_, query(scope, request_.defaults, names.size()), first, second);
        for (size_t i = 0; i < names.size(); ++i) {
            rows.bind(static_cast<int>(3 + i), std::string_view(names[i]));
        }
        std::string key;
        std::vector<Row> object; // with names, the rows of one object come in the names' order
        while (rows.step()) {
            const std::string_view name = rows.text(1);
            // The store's own counts hold also where defaults are asked for.
            const int column = request_.defaults && !isCountName(name) ? 4 : 3;
            if (names.empty()) {
                emit_(rows.text(0), name, rows.text(column));
                continue;
            }
            if (rows.text(0) != key) {
                emitRows(key, object);
                key = rows.text(0);
            }
            object.push_back({rows.integer(2), std::string(name), std::string(rows.text(column))});
            found_.emplace(name);
        }
        emitRows(key, object);
    }

    void emitRows(const std::string &key, std::vector<Row> &rows) const {
        std::sort(rows.begin(), rows.end(), [](const Row &a, const Row &b) { return a.position < b.position; });
        for (const Row &row : rows) {
            emit_(key, row.name, row.value);
        }
        rows.clear();
    }

    bool isParameterOf(const ObjectRow &object, const std::string &name) const {
        if (object.kind != ObjectKind::Table) {
            return findParameter(database_, object.id, name).has_value();
        }
        return isParameterOfInstances(database_, object.id, name);
    }

    bool isEmptyTable(const ObjectRow &object) const {
        Statement instance(database_, "SELECT 1 FROM object WHERE parent = ?1 AND presence <> 2 LIMIT 1", object.id);
        return object.kind == ObjectKind::Table && !instance.step();
    }

    [[noreturn]] void refuseFilters(const ObjectRow &object) const {
        for (const auto &[name, value] : request_.filters) {
            if (!isEmptyTable(object) && !isParameterOf(object, name)) {
                throw Refusal(CALTOFAL_NO_MATCH, path_ + ": no instance has a parameter " + quotedName(name));
            }
        }
        throw Refusal(CALTOFAL_NO_MATCH, path_ + ": no instance has " + filterText());
    }

    std::vector<std::string> matches(const std::string &key, const ObjectRow &object) const {
        std::vector<std::string> keys;
        if (object.kind == ObjectKind::Table) {
            const auto &[name, value] = request_.filters.front();
            Statement instances(database_,
                                "SELECT o.key, o.id FROM parameter p CROSS JOIN object o WHERE p.container = ?1 AND "
                                "p.name = ?2 AND p.running = ?3 AND o.id = p.object AND o.presence <> 2",
                                object.id, name, value);
            while (instances.step()) {
                if (fulfilsAll(instances.integer(1))) {
                    keys.emplace_back(instances.text(0));
                }
            }
        } else if (fulfilsAll(object.id)) {
            keys.push_back(key);
        }
        if (keys.empty()) {
            refuseFilters(object);
        }
        std::sort(keys.begin(), keys.end());
        return keys;
    }

    bool fulfilsAll(int64_t object) const {
        return std::all_of(request_.filters.begin(), request_.filters.end(), [&](const auto &filter) {
            const std::optional<ParameterRow> row = findParameter(database_, object, filter.first);
            return row && row->running == filter.second;
        });
    }

    std::string filterText() const {
        std::string text;
        for (const auto &[name, value] : request_.filters) {
            const bool known = isKnownParameter(database_, request_.path, name); // a slip may be a secret's
            text += (text.empty() ? "" : " and ") + shownName(name) + " = " +
                    (known ? quotedValue(name, value) : std::string(kHidden));
        }
        return text;
    }

    Database &database_;
    const GetRequest &request_;
    const Emit &emit_;
    const std::string path_;
    std::set<std::string, std::less<>> found_;
};

} // namespace

std::string shownPath(std::string_view path) {
    if (path.ends_with('.')) {
        path.remove_suffix(1);
    }
    return keyOf(path) ? std::string(path) : quotedName(path);
}

std::vector<std::string> readParameters(Database &database, const GetRequest &request, const Emit &emit) {
    Reader reader(database, request, emit);
    reader.run();
    return reader.missingNames();
}

} // namespace sandbox
