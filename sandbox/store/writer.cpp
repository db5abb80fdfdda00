// SPDX-License-Identifier: MIT
#include "store/writer.h"

#include "caltofal.h"
#include "store/model.h"
#include "store/nature.h"
#include "store/possible.h"
#include "store/reader.h"
#include "value/accepted_value.h"
#include "value/path.h"
#include "value/refusal.h"
#include "value/secret.h"

#include <algorithm>
#include <limits>

namespace sandbox {
namespace {

class Writer {
  public:
    Writer(Database &database, int layers) : database_(database), layers_(layers), definitions_(database) {}

    void apply(SetRequest &request) {
        path_ = shownPath(request.path);
        const std::optional<std::string> key = keyOf(request.path);
        const std::optional<ObjectRow> object = key ? findObject(database_, *key) : std::nullopt;
        if (!object || (object->presence & seen()) == 0) {
            throw Refusal(CALTOFAL_ABSENT_OBJECT, noSuchObject(database_, path_));
        }
        switch (request.operation) {
        case SetRequest::Operation::Set:
            setValues(*key, object->id, request);
            break;
        case SetRequest::Operation::Add:
            add(*key, *object, request);
            break;
        case SetRequest::Operation::Delete:
            remove(*key, *object);
            break;
        }
    }

    // Once all of a message is done, so that its settings may depend on each other in any order.
    void refuseImpossibleSettings() {
        for (const Changed &setting : changed_) {
            refuseImpossible(database_, setting.key, setting.name, setting.type, setting.value);
        }
    }

  private:
    // A setting that is no longer what it was.
    struct Changed {
        std::string key, name;
        ValueType type;
        std::string value;
    };

    // The layer whose objects are there to be changed.
    int seen() const { return layers_ == kEverywhere ? kRunning : kStored; }

    void add(const std::string &key, const ObjectRow &table, SetRequest &request) {
        if (table.kind != ObjectKind::Table) {
            throw Refusal(CALTOFAL_NOT_A_TABLE, path_ + ": not a table, nothing can be added");
        }
        refuseReadOnly(table);
        if (table.last >= static_cast<uint32_t>(std::numeric_limits<int32_t>::max())) {
            throw Refusal(CALTOFAL_OUT_OF_RANGE, path_ + ": all instance numbers are used up");
        }
        const std::string instance = instanceKey(key, table.last + 1);
        const Templates templates(database_, instance);
        const std::string sibling = anyInstanceOf(table);
        Model model(database_, definitions_, templates);
        const int64_t id = model.ensureObject(instance, layers_);
        if (!sibling.empty() && !isDeclared(templates, instance)) {
            model.shapeLike(instance, sibling, layers_);
        }
        path_ = request.added = pathOf(instance);
        setValues(instance, id, request);
    }

    // The key of the table's first instance; "" for none.
    std::string anyInstanceOf(const ObjectRow &table) {
        Statement instance(database_, "SELECT min(key) FROM object WHERE parent = ?1 AND kind = 2", table.id);
        instance.step();
        return std::string(instance.text(0));
    }

    // A gateway of another maker, taken in from a dump, has no patterns.
    static bool isDeclared(const Templates &templates, const std::string &instance) {
        const std::vector<TemplateMatch> matches = templates.matching(instance);
        return std::any_of(matches.begin(), matches.end(),
                           [](const TemplateMatch &match) { return match.remainder.empty(); });
    }

    void remove(const std::string &key, const ObjectRow &object) {
        if (object.kind != ObjectKind::Instance) {
            throw Refusal(CALTOFAL_NOT_A_TABLE, path_ + ": not an instance of a table, it cannot be deleted");
        }
        refuseReadOnly(*findObject(database_, parentKey(key)));
        Model(database_, definitions_, noTemplates_).removeInstance(key, layers_);
    }

    void refuseReadOnly(const ObjectRow &table) const {
        if (!table.writable) {
            throw Refusal(CALTOFAL_READ_ONLY, path_ + ": the table is read-only");
        }
    }

    void setValues(const std::string &key, int64_t object, const SetRequest &request) {
        for (const auto &[name, value] : request.values) {
            const std::optional<ParameterRow> row = findParameter(database_, object, name);
            if (!row) {
                throw Refusal(CALTOFAL_UNKNOWN_PARAMETER, path_ + ": no parameter " + quotedName(name));
            }
            const Definition &definition = definitions_.get(row->definition);
            if (!definition.writable || isKeptCount(database_, key, name)) {
                throw Refusal(CALTOFAL_READ_ONLY, path_ + "." + name + ": read-only");
            }
            const std::string stored = acceptedValue(definition.type, path_ + "." + name, value);
            if (stored != (layers_ == kStored ? row->pending.value_or(row->running) : row->running)) {
                changed_.push_back({key, name, definition.type, stored});
            }
            Model(database_, definitions_, noTemplates_)
                .setValue(object, *row, layers_ == kStored ? row->running : stored, stored);
        }
    }

    Database &database_;
    int layers_;
    Definitions definitions_;
    const Templates noTemplates_; // for changes that make no objects
    std::string path_;
    std::vector<Changed> changed_;
};

} // namespace

void applyRequests(Database &database, std::vector<SetRequest> &requests, int layers) {
    Writer writer(database, layers);
    for (SetRequest &request : requests) {
        writer.apply(request);
    }
    writer.refuseImpossibleSettings();
}

} // namespace sandbox
