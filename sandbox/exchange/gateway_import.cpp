// SPDX-License-Identifier: MIT
#include "exchange/gateway_import.h"

#include "store/model.h"
#include "value/accepted_value.h"
#include "value/path.h"
#include "value/refusal.h"

#include <unordered_map>

namespace sandbox {
namespace {

bool isTemplate(const Entry &entry) {
    return entry.kind == Entry::Kind::TemplateObject || entry.kind == Entry::Kind::TemplateParameter;
}

// An empty value stands for none, whatever the type.
std::string fitting(const Definition &definition, const Entry &entry, const std::string &value) {
    return value.empty() ? value : acceptedValue(definition.type, entry.fullPath(), value);
}

// What the entry says, over what was there.
Definition overlaid(Definition definition, const Entry &entry) {
    definition.type = entry.type.value_or(definition.type);
    definition.writable = entry.writable.value_or(definition.writable);
    definition.fallback = entry.fallback.value_or(definition.fallback);
    definition.fallback = fitting(definition, entry, definition.fallback);
    return definition;
}

class Import {
  public:
    Import(Database &database, const std::string &file)
        : database_(database), file_(file), definitions_(database), model_(database, definitions_, templates_) {}

    void run(const Entries &entries) {
        refuseDuplicates(entries);
        each(entries, &Import::declare);
        templates_ = Templates(database_, "");
        each(entries, &Import::applyTemplate);
        each(entries, &Import::takeIn);
    }

  private:
    void each(const Entries &entries, void (Import::*step)(const Entry &)) {
        for (const Entry &entry : entries) {
            try {
                (this->*step)(entry);
            } catch (const Refusal &refusal) {
                throw FileError(file_, entry.line, refusal.what());
            }
        }
    }

    void refuseDuplicates(const Entries &entries) const {
        std::unordered_map<std::string, size_t> lines;
        for (const Entry &entry : entries) {
            const auto [first, added] = lines.emplace(entry.fullPath(), entry.line);
            if (!added) {
                throw FileError(file_, entry.line,
                                entry.fullPath() + " was already given in line " + std::to_string(first->second));
            }
        }
    }

    void declare(const Entry &entry) {
        if (!isTemplate(entry)) {
            return;
        }
        Statement(database_, "INSERT OR IGNORE INTO template_object(pattern, writable) VALUES(?1, 0)", entry.path)
            .run();
        if (entry.kind == Entry::Kind::TemplateObject) {
            Statement(database_, "UPDATE template_object SET writable = coalesce(?2, writable) WHERE pattern = ?1",
                      entry.path, entry.writable)
                .run();
            return;
        }
        Statement find(database_, "SELECT definition FROM template_parameter WHERE pattern = ?1 AND name = ?2",
                       entry.path, entry.name);
        const Definition before = find.step() ? definitions_.get(find.integer(0)) : Definition();
        Statement(database_,
                  "INSERT INTO template_parameter(pattern, position, name, definition) SELECT ?1, "
                  "(SELECT coalesce(max(position) + 1, 0) FROM template_parameter WHERE pattern = ?1), ?2, ?3 "
                  "WHERE true ON CONFLICT(pattern, name) DO UPDATE SET definition = excluded.definition",
                  entry.path, entry.name, definitions_.idOf(overlaid(before, entry)))
            .run();
    }

    void applyTemplate(const Entry &entry) {
        if (isTemplate(entry) && entry.path != appliedPattern_) {
            model_.applyTemplate(entry.path);
            appliedPattern_ = entry.path;
        }
    }

    void takeIn(const Entry &entry) {
        if (isTemplate(entry)) {
            return;
        }
        const std::string key = *keyOf(entry.path);
        const int64_t object = model_.ensureObject(key, entry.presence.value_or(kEverywhere));
        if (entry.last) {
            model_.makeTable(key, *entry.last);
        }
        if (entry.kind == Entry::Kind::Parameter) {
            takeInParameter(entry, key, object);
        }
    }

    void takeInParameter(const Entry &entry, const std::string &key, int64_t object) {
        std::optional<ParameterRow> row = findParameter(database_, object, entry.name);
        const Definition definition = overlaid(row ? definitions_.get(row->definition) : Definition(), entry);
        const int64_t id = definitions_.idOf(definition);
        if (!row) {
            model_.addParameter(key, object, entry.name, id);
            row = findParameter(database_, object, entry.name);
        } else if (row->definition != id) {
            model_.setDefinition(object, *row, id);
        }
        if (!isKeptCount(database_, key, entry.name)) {
            const std::string stored = fitting(definition, entry, *entry.value);
            const std::string running = entry.running ? fitting(definition, entry, *entry.running) : stored;
            model_.setValue(object, *row, running, stored);
        }
    }

    Database &database_;
    const std::string &file_;
    Definitions definitions_;
    Templates templates_;
    Model model_;
    std::string appliedPattern_;
};

} // namespace

void importEntries(Database &database, const Entries &entries, const std::string &file) {
    Import(database, file).run(entries);
}

void clearModel(Database &database) {
    database.execute("DELETE FROM parameter; DELETE FROM object; DELETE FROM template_parameter; "
                     "DELETE FROM template_object; DELETE FROM definition;");
}

} // namespace sandbox
