// SPDX-License-Identifier: MIT
#include "exchange/gateway_export.h"

#include "store/model.h"
#include "store/recording.h"
#include "value/path.h"

#include <algorithm>

namespace sandbox {
namespace {

// Bits of object.presence that a view shows.
int layersOf(View view) {
    return view == View::Both ? kEverywhere : view == View::Stored ? kStored : kRunning;
}

void describe(Entry &entry, const Definition &definition, const Definition *usual) {
    entry.type = definition.type;
    entry.writable = definition.writable;
    if (!definition.fallback.empty() || (usual && !usual->fallback.empty())) {
        entry.fallback = definition.fallback;
    }
}

class Export {
  public:
    Export(Database &database, const std::string &key, View view, Detail detail)
        : database_(database), key_(key), view_(view), detail_(detail), definitions_(database),
          templates_(database, key) {}

    Entries run() {
        addTemplates();
        const std::string end = key_.empty() ? "\xff" : keyEnd(key_);
        Statement objects(
            database_,
            "SELECT o.id, o.key, o.kind, o.presence, o.last, coalesce(h.presence, 3), o.writable FROM object o "
            "LEFT JOIN object h ON h.id = o.parent WHERE o.key >= ?1 AND o.key < ?2 "
            "AND o.presence & ?3 ORDER BY o.key",
            key_, end, layersOf(view_));
        while (objects.step()) {
            addObject(objects);
        }
        if (key_.empty() && view_ == View::Both) {
            addRecordings();
        }
        return std::move(entries_);
    }

  private:
    void addRecordings() {
        for (Recording &recording : recordings(database_)) {
            Entry &entry = add(Entry::Kind::Recording, std::move(recording.name));
            entry.exitCode = recording.exitCode;
            entry.value = std::move(recording.content);
        }
    }

    void addTemplates() {
        std::vector<TemplateMatch> matches = templates_.matching(key_);
        std::reverse(matches.begin(), matches.end());
        for (const TemplateMatch &match : matches) {
            if (match.pattern.ends_with("{i}.") || match.object->parameters.empty()) {
                Entry &entry = add(Entry::Kind::TemplateObject, std::string(match.pattern));
                if (match.pattern.ends_with("{i}.")) {
                    entry.writable = match.object->writable;
                }
            }
            for (const TemplateParameter &parameter : match.object->parameters) {
                Entry &entry = add(Entry::Kind::TemplateParameter, std::string(match.pattern), parameter.name);
                describe(entry, definitions_.get(parameter.definition), nullptr);
            }
        }
    }

    void addObject(const Statement &row) {
        const int64_t id = row.integer(0);
        const std::string key(row.text(1));
        const auto kind = static_cast<ObjectKind>(row.integer(2));
        const auto presence = static_cast<int>(row.integer(3));
        const auto last = static_cast<uint32_t>(row.integer(4));
        const std::string path = pathOf(key) + ".";
        const std::vector<TemplateMatch> matches = templates_.matching(key);

        const std::string lastChild = lastChildKey(id);
        const uint32_t implied = lastChild.empty() ? 0 : instanceOf(lastComponent(lastChild)).value_or(0);
        const bool bare = !hasParameters(id) && lastChild.empty() && (matches.empty() || kind == ObjectKind::Instance);
        const bool branchEdge = presence != row.integer(5) && view_ == View::Both;
        const bool table = kind == ObjectKind::Table && (last > implied || bare);
        const bool writable = row.integer(6) != 0;
        const bool unusual =
            view_ != View::Running && kind == ObjectKind::Table && writable != usuallyWritable(matches);
        if (bare || branchEdge || table || unusual) {
            Entry &entry = add(Entry::Kind::Object, path);
            entry.presence = branchEdge ? std::optional(presence) : std::nullopt;
            entry.last = table ? std::optional(last) : std::nullopt;
            entry.writable = unusual ? std::optional(writable) : std::nullopt;
        }
        addParameters(id, path, presence, matches);
    }

    void addParameters(int64_t object, const std::string &path, int presence,
                       const std::vector<TemplateMatch> &matches) {
        // What is not part of the stored model has no stored values.
        const int stored = view_ == View::Running || presence == kRunning ? 2 : 3;
        Statement parameters(database_,
                             "SELECT name, definition, running, coalesce(pending, running) FROM parameter "
                             "WHERE object = ?1 ORDER BY position",
                             object);
        while (parameters.step()) {
            Entry &entry = add(Entry::Kind::Parameter, path, std::string(parameters.text(0)));
            const Definition &definition = definitions_.get(parameters.integer(1));
            const int64_t usualId = usualDefinition(matches, entry.name);
            const Definition usual = usualId != 0 ? definitions_.get(usualId) : Definition();
            if (detail_ == Detail::All || !(definition == usual)) {
                describe(entry, definition, &usual);
            }
            entry.value = parameters.text(stored);
            if (view_ == View::Both && parameters.text(2) != *entry.value) {
                entry.running = parameters.text(2);
            }
        }
    }

    // Whether a new table would let instances be added and deleted.
    static bool usuallyWritable(const std::vector<TemplateMatch> &matches) {
        bool writable = false;
        for (const TemplateMatch &match : matches) {
            const bool own = match.remainder.size() == 1 && match.remainder.front() == kAnyInstance;
            writable = own ? match.object->writable : writable;
        }
        return writable;
    }

    // What a new object would get; 0 when no template declares the parameter.
    static int64_t usualDefinition(const std::vector<TemplateMatch> &matches, const std::string &name) {
        int64_t id = 0;
        for (const TemplateMatch &match : matches) {
            if (!match.remainder.empty()) {
                continue;
            }
            for (const TemplateParameter &parameter : match.object->parameters) {
                id = parameter.name == name ? parameter.definition : id;
            }
        }
        return id;
    }

    bool hasParameters(int64_t object) {
        return Statement(database_, "SELECT 1 FROM parameter WHERE object = ?1", object).step();
    }

    std::string lastChildKey(int64_t object) {
        Statement child(database_, "SELECT max(key) FROM object WHERE parent = ?1", object);
        child.step();
        return std::string(child.text(0));
    }

    Entry &add(Entry::Kind kind, std::string path, std::string name = {}) {
        Entry &entry = entries_.emplace_back();
        entry.kind = kind;
        entry.path = std::move(path);
        entry.name = std::move(name);
        return entry;
    }

    Database &database_;
    const std::string &key_;
    View view_;
    Detail detail_;
    Definitions definitions_;
    Templates templates_;
    Entries entries_;
};

} // namespace

Entries exportEntries(Database &database, const std::string &key, View view, Detail detail) {
    return Export(database, key, view, detail).run();
}

} // namespace sandbox
