// SPDX-License-Identifier: MIT
//
// The rows of objects and parameters, and the rules that hold between them: ancestors exist, instances are made of
// their templates, and a parameter XNumberOfEntries beside a table X tells its number of instances.
#pragma once

#include "store/definition.h"
#include "store/schema.h"
#include "store/templates.h"

#include <optional>
#include <span>

namespace sandbox {

struct ObjectRow {
    int64_t id;
    std::optional<int64_t> parent;
    ObjectKind kind;
    int presence;
    bool writable;
    uint32_t last;
};

std::optional<ObjectRow> findObject(Database &database, std::string_view key);

struct ParameterRow {
    int64_t position;
    int64_t definition;
    std::string running;
    std::optional<std::string> pending;
};

std::optional<ParameterRow> findParameter(Database &database, int64_t object, std::string_view name);

// Whether the store keeps the parameter by itself, as the number of instances of a table beside it.
bool isKeptCount(Database &database, std::string_view objectKey, std::string_view name);

// A name that may be such a parameter's.
bool isCountName(std::string_view name);

// Changes the rows. Within one write transaction of the caller, whose only writer it is.
class Model {
  public:
    // `templates` holds at least those of what will be made, and outlives the model.
    Model(Database &database, Definitions &definitions, const Templates &templates)
        : database_(database), definitions_(definitions), templates_(templates) {}

    // The object's id. Where it does not exist it is made of its templates, with the ancestors that it lacks;
    // `presence` is cut to that of its parent.
    int64_t ensureObject(std::string_view key, int presence);

    // Makes an object a table in which at least `last` instance numbers were given.
    void makeTable(std::string_view key, uint32_t last);

    // Whether a set may add and delete instances of a table.
    void setWritable(int64_t table, bool writable);

    // Adds a parameter after the object's others, with its default value.
    void addParameter(std::string_view key, int64_t object, std::string_view name, int64_t definition);
    // The same with values.
    void addParameter(std::string_view key, int64_t object, std::string_view name, int64_t definition,
                      std::string_view running, std::string_view stored);
    void setDefinition(int64_t object, const ParameterRow &parameter, int64_t definition);
    void setValue(int64_t object, const ParameterRow &parameter, std::string_view running, std::string_view stored);

    // Gives an instance what another one of its table has, with defaults; not the instances of tables below it.
    void shapeLike(std::string_view key, std::string_view sibling, int presence);

    // Takes an instance and everything below it out of the models in `layers`.
    void removeInstance(std::string_view key, int layers);

    // Makes what a pattern says exist: its fixed objects, its tables, and in their instances what these lack of it.
    void applyTemplate(std::string_view pattern);

  private:
    struct Made {
        int64_t id;
        int presence;
    };

    Made ensure(std::string_view key, int presence);
    Made create(std::string_view key, int presence);
    void addTemplateParameters(std::string_view key, int64_t object, const std::vector<TemplateMatch> &matches);
    // What stands below a new object by its templates.
    void createContents(std::string_view key, const Made &object, const std::vector<TemplateMatch> &matches);
    void applyBelow(std::string_view key, std::span<const std::string_view> remainder, const TemplateObject &object);
    void bumpCount(std::string_view tableKey, int running, int stored);
    void writeCount(std::string_view tableKey);

    // The object that got a parameter last: usually the next one is for it too.
    struct Filling {
        int64_t object = 0;   // 0: none
        int64_t position = 0; // of the next one
        std::optional<int64_t> container = {};
    };

    Database &database_;
    Definitions &definitions_;
    const Templates &templates_;
    Filling filling_ = {};
};

} // namespace sandbox
