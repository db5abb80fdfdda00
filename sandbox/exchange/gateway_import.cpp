// SPDX-License-Identifier: MIT
#include "exchange/gateway_import.h"

#include "store/model.h"
#include "store/nature.h"
#include "store/recording.h"
#include "value/accepted_value.h"
#include "value/escape.h"
#include "value/path.h"
#include "value/refusal.h"

#include <strings.h>
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
    // With a report, what does not fit is taken as text.
    Import(Database &database, const std::string &file, ImportReport *report)
        : database_(database), file_(file), report_(report), definitions_(database),
          model_(database, definitions_, templates_) {}

    void run(const Entries &entries) {
        if (!report_) {
            refuseDuplicates(entries, file_);
        }
        each(entries, &Import::declare);
        templates_ = Templates(database_, "");
        each(entries, &Import::applyTemplate);
        each(entries, &Import::takeIn);
        if (report_) {
            each(entries, &Import::compareCounter);
            report_->nature = natureOf(database_);
        }
    }

  private:
    void each(const Entries &entries, void (Import::*step)(const Entry &)) {
        for (const Entry &entry : entries) {
            try {
                (this->*step)(entry);
            } catch (const Refusal &refusal) {
                throw FileError(file_, entry.line, refusal.what());
            } catch (const DatabaseError &error) {
                if (!error.conflict()) {
                    throw;
                }
                throw FileError(file_, entry.line, entry.fullPath() + " does not go with the rest of the gateway");
            }
        }
    }

    void declare(const Entry &entry) {
        if (!isTemplate(entry) || (entry.guessed && isGuessedInVain(entry))) {
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

    // A table that the gateway has says itself what its instances are made of.
    bool isGuessedInVain(const Entry &entry) {
        const std::string table = entry.path.substr(0, entry.path.find(kAnyInstance));
        const auto [known, added] = tables_.emplace(table, false);
        if (added) {
            const std::optional<std::string> key = keyOf(table);
            known->second = key && findObject(database_, *key);
        }
        return known->second;
    }

    void applyTemplate(const Entry &entry) {
        if (entry.guessed && isTemplate(entry) && isGuessedInVain(entry)) {
            return;
        }
        if (isTemplate(entry) && entry.path != appliedPattern_) {
            model_.applyTemplate(entry.path);
            appliedPattern_ = entry.path;
        }
    }

    void takeIn(const Entry &entry) {
        if (entry.kind == Entry::Kind::Recording) {
            keepRecording(database_, {entry.path, entry.exitCode, *entry.value});
            return;
        }
        if (isTemplate(entry)) {
            return;
        }
        openObject(entry);
        if (entry.kind == Entry::Kind::Parameter) {
            takeInParameter(entry);
            return;
        }
        if (entry.last || entry.writable) {
            model_.makeTable(key_, entry.last.value_or(0));
        }
        if (entry.writable) {
            model_.setWritable(object_, *entry.writable);
        }
    }

    // Parameters of an object usually come in a row.
    void openObject(const Entry &entry) {
        if (entry.path != path_ || entry.presence) {
            path_ = entry.path;
            key_ = *keyOf(path_);
            if (const std::string_view holder = parentKey(key_); entry.presence && !holder.empty()) {
                model_.ensureObject(holder, kEverywhere); // the file says so where it is not
            }
            object_ = model_.ensureObject(key_, entry.presence.value_or(kEverywhere));
        }
    }

    void takeInParameter(const Entry &entry) {
        const std::optional<ParameterRow> row = findParameter(database_, object_, entry.name);
        if (row && entry.hidden) {
            return;
        }
        Definition definition = row ? definitions_.get(row->definition) : Definition();
        std::string stored;
        if (report_) {
            stored = overlayLeniently(definition, entry, row.has_value());
        } else {
            definition = overlaid(std::move(definition), entry);
            const bool kept = isKeptCount(database_, key_, entry.name);
            stored = kept ? *entry.value : fitting(definition, entry, *entry.value);
        }
        const std::string running = entry.running ? fitting(definition, entry, *entry.running) : stored;
        const int64_t id = definitions_.idOf(definition);
        if (!row) {
            model_.addParameter(key_, object_, entry.name, id, running, stored);
            return;
        }
        if (row->definition != id) {
            model_.setDefinition(object_, *row, id);
        }
        if (!isKeptCount(database_, key_, entry.name)) {
            model_.setValue(object_, *row, running, stored);
        }
    }

    // The value as it is stored. The gateway's own type holds where the value fits it, then the entry's, then text.
    std::string overlayLeniently(Definition &definition, const Entry &entry, bool exists) {
        report_->taken += entry.hidden ? 0 : 1;
        std::string value = *entry.value;
        if (exists && (value.empty() || definition.type.check(value) == ValueType::Verdict::Valid)) {
            return value;
        }
        if (!exists || !entry.guessed) {
            definition.type = entry.type.value_or(definition.type);
            definition.fallback = entry.fallback.value_or("");
        }
        definition.writable = exists ? definition.writable : entry.writable.value_or(false);
        try {
            return isCountName(entry.name) ? value : fitting(definition, entry, value);
        } catch (const Refusal &refusal) {
            countMisfit(definition.type, value, refusal.what());
            definition.type = ValueType();
            definition.fallback.clear();
            return value;
        }
    }

    // Pages take FALSE for off like any word but true, so that it tells nothing; most of them take TRUE for on.
    void countMisfit(const ValueType &type, const std::string &value, const char *why) const {
        const bool off = type.isFlag() && strcasecmp(value.c_str(), "false") == 0;
        const bool on = type.isFlag() && strcasecmp(value.c_str(), "true") == 0;
        if (!off) {
            report_->count(on ? Reason::FlagSpelling : Reason::Misfit, why);
        }
    }

    // A counter that the file's own instances belie can be what somebody looks for.
    void compareCounter(const Entry &entry) {
        if (entry.kind != Entry::Kind::Parameter || !isCountName(entry.name)) {
            return;
        }
        openObject(entry);
        const std::optional<ParameterRow> row = findParameter(database_, object_, entry.name);
        if (row && !entry.value->empty() && row->running != *entry.value) {
            report_->count(Reason::CounterDiffers,
                           entry.fullPath() + ": " + quotedShort(*entry.value) + ", there are " + row->running);
        }
    }

    Database &database_;
    const std::string &file_;
    ImportReport *report_;
    Definitions definitions_;
    Templates templates_;
    Model model_;
    std::string appliedPattern_;
    std::unordered_map<std::string, bool> tables_; // of guessed templates: whether they were there
    // The object that was opened last.
    std::string path_, key_;
    int64_t object_ = 0;
};

} // namespace

void importEntries(Database &database, const Entries &entries, const std::string &file, ImportReport *report) {
    Import(database, file, report).run(entries);
}

void clearModel(Database &database) {
    database.execute("DELETE FROM parameter; DELETE FROM object; DELETE FROM template_parameter; "
                     "DELETE FROM template_object; DELETE FROM definition;");
    forgetRecordings(database);
}

} // namespace sandbox
