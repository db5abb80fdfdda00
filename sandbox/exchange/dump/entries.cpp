// SPDX-License-Identifier: MIT
#include "exchange/dump/entries.h"

#include "caltofal.h"
#include "exchange/dump/alias.h"
#include "exchange/dump/known.h"
#include "exchange/dump/typing.h"
#include "exchange/dump/words.h"
#include "value/escape.h"
#include "value/path.h"
#include "value/secret.h"
#include "value/value_syntax.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace sandbox {
namespace {

constexpr std::string_view kDeviceRoot = "Device.";
constexpr std::string_view kGatewayRoot = "InternetGatewayDevice.";
constexpr size_t kFewTables = 200;
constexpr std::string_view kCountSuffix = "NumberOfEntries";

// What an ACS keeps beside a device's own model.
constexpr std::string_view kAcsRoots[] = {"DeviceID",          "Events", "Reboot", "FactoryReset", "Tags", "Downloads",
                                          "VirtualParameters", "Event"};

bool isAcsPath(std::string_view path) {
    const std::string_view root = path.substr(0, path.find('.'));
    return std::find(std::begin(kAcsRoots), std::end(kAcsRoots), root) != std::end(kAcsRoots);
}

// Why the path cannot be taken; empty when it can.
std::optional<Reason> troubleOf(std::string_view path) {
    if (isAcsPath(path)) {
        return Reason::AcsRow;
    }
    if (!path.starts_with(kDeviceRoot) && !path.starts_with(kGatewayRoot)) {
        return Reason::ForeignRoot;
    }
    return path.find('{') != std::string_view::npos ? std::optional(Reason::Placeholder) : std::nullopt;
}

class Conversion {
  public:
    explicit Conversion(Dump &dump) : dump_(dump), report_(dump.report), typing_(dump.rows) {
        entries_.reserve(dump.rows.size());
        places_.reserve(dump.rows.size());
    }

    Entries run() {
        for (DumpRow &row : dump_.rows) {
            take(row);
        }
        dropValuesOfObjects();
        for (const std::string &table : tables_) {
            addTable(table);
        }
        return std::move(entries_);
    }

  private:
    void take(DumpRow &row) {
        std::string &path = row.path;
        if (const std::string_view bare = trimmed(path); bare.size() != path.size()) {
            path = std::string(bare);
        }
        row.object = row.object || path.ends_with('.');
        if (row.object && !path.ends_with('.')) {
            path += '.';
        }
        const std::optional<Reason> trouble = troubleOf(path);
        const bool valueOfObject = row.object && row.value && !row.value->empty();
        report_.values += (row.object && !valueOfObject) || trouble == Reason::AcsRow ? 0 : 1;
        if (trouble) {
            report_.count(*trouble, exampleOf(row));
            return;
        }
        if (valueOfObject) {
            report_.count(Reason::ValueOfObject, path);
        }
        try {
            Entry entry = entryFor(path);
            entry.line = row.line;
            if (row.object) {
                takeObject(row, std::move(entry));
            } else {
                takeValue(row, std::move(entry));
            }
        } catch (const std::invalid_argument &error) {
            report_.count(Reason::BadPath, error.what());
        }
    }

    // Parameters of an object usually come in a row: its path is judged once.
    Entry entryFor(const std::string &path) {
        const size_t end = path.rfind('.') + 1;
        const std::string_view name = std::string_view(path).substr(end);
        if (end == 0 || path.compare(0, end, judged_) != 0 || !isName(name)) {
            Entry entry = entryOf(path);
            judged_ = entry.path;
            return entry;
        }
        Entry entry{};
        entry.kind = Entry::Kind::Parameter;
        entry.path = judged_;
        entry.name = name;
        return entry;
    }

    void takeObject(const DumpRow &row, Entry entry) {
        if (row.writable) {
            const bool instance = instanceOf(lastComponent(entry.path)).has_value();
            const std::string table(instance ? parentKey(entry.path) : entry.path);
            bool &writable = writableTables_[table];
            writable = writable || *row.writable;
            if (writable) {
                tables_.insert(table);
            }
        }
        if (isTableWord(row.type)) {
            tables_.insert(entry.path);
        }
        if (noteObject(row.path)) {
            entries_.push_back(std::move(entry));
        }
    }

    void takeValue(DumpRow &row, Entry entry) {
        const std::string &path = row.path;
        if (row.value && !row.type.empty() && areSwapped(*row.value, row.type)) {
            std::swap(*row.value, row.type);
        }
        if (!row.value) {
            report_.count(Reason::NoValue, path);
            row.value = "";
        }
        if (isHidden(entry.name, *row.value)) {
            report_.count(Reason::Hidden, path);
            row.value = "";
            entry.hidden = true;
        }
        if (row.value->size() >= PARAM_VALUE_SIZE || row.value->find('\0') != std::string::npos) {
            report_.count(row.value->size() >= PARAM_VALUE_SIZE ? Reason::TooLong : Reason::HoldsNul, path);
            return;
        }
        noteObject(std::string_view(path).substr(0, entry.path.size()));
        entry.value = std::move(row.value);
        typing_.describe(row, entry, report_);
        const auto [first, added] = places_.emplace(path, entries_.size());
        if (!added) {
            report_.count(Reason::GivenTwice, path);
            entries_[first->second] = std::move(entry);
            return;
        }
        noteCounter(entry);
        entries_.push_back(std::move(entry));
    }

    // Remembers the object and those above it; whether it was new. `path` is of a row.
    bool noteObject(std::string_view path) {
        if (path == lastObject_) {
            return false;
        }
        lastObject_ = path;
        bool added = false;
        for (std::string_view object = path; !object.empty(); object = parentKey(object)) {
            if (!objects_.insert(object).second) {
                break;
            }
            added = true;
            if (instanceOf(lastComponent(object))) {
                tables_.emplace(parentKey(object));
                tablesInUse_.emplace(parentKey(object));
            }
        }
        return added;
    }

    // A counter tells of a table, also of an empty one. In the older model names of counters and tables differ.
    void noteCounter(const Entry &entry) {
        if (entry.name.size() > kCountSuffix.size() && entry.name.ends_with(kCountSuffix) &&
            entry.path.starts_with(kDeviceRoot)) {
            tables_.insert(entry.path + entry.name.substr(0, entry.name.size() - kCountSuffix.size()) + ".");
        }
    }

    void dropValuesOfObjects() {
        const bool any = std::any_of(objects_.begin(), objects_.end(), [this](std::string_view object) {
            return places_.contains(object.substr(0, object.size() - 1));
        });
        if (!any) {
            return;
        }
        std::erase_if(entries_, [this](const Entry &entry) {
            const bool conflict = !entry.name.empty() && objects_.contains(entry.fullPath() + ".");
            if (conflict) {
                report_.count(Reason::ValueOfObject, entry.fullPath());
            }
            return conflict;
        });
    }

    void addTable(const std::string &path) {
        if (places_.contains(std::string_view(path).substr(0, path.size() - 1)) || !keyOf(path)) {
            return;
        }
        Entry entry = entryOf(path);
        const auto said = writableTables_.find(path);
        const std::optional<bool> known = knownTable(patternOf(path) + std::string(kAnyInstance) + ".");
        entry.writable = said != writableTables_.end() ? said->second : known.value_or(false);
        entries_.push_back(std::move(entry));
        // Patterns with instance numbers cost every later import and addition a look, so that they stay few.
        if (!tablesInUse_.contains(path) && (tables_.size() < kFewTables || patternOf(path) == path)) {
            Entries instances = knownInstances(path);
            std::move(instances.begin(), instances.end(), std::back_inserter(entries_));
        }
    }

    Dump &dump_;
    ImportReport &report_;
    Typing typing_;
    Entries entries_;
    std::string judged_; // the last object's path
    // Paths below are the rows' own.
    std::unordered_map<std::string_view, size_t> places_; // of parameters in entries_
    std::unordered_set<std::string_view> objects_;
    std::string_view lastObject_;
    std::set<std::string> tables_;
    std::unordered_set<std::string> tablesInUse_; // with instances
    std::unordered_map<std::string, bool> writableTables_;
};

} // namespace

Entries entriesOf(Dump &dump) {
    numberAliases(dump);
    return Conversion(dump).run();
}

} // namespace sandbox
