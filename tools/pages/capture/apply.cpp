// SPDX-License-Identifier: MIT
#include "pages/capture/file.h"
#include "pages/capture/pages.h"
#include "pages/capture/standard_access.h"
#include "pages/failure.h"
#include "pages/layer/definition.h"
#include "pages/secret.h"
#include "pages/text.h"

#include <algorithm>
#include <map>
#include <set>

namespace pages::capture {
namespace {

constexpr size_t kNamed = 5;
constexpr const char *kReplaced = "a secret that was replaced in the file";

// "Device.WiFi." of "Device.WiFi.Radio.1."; of a root itself, the root.
std::string branchOf(const std::string &object) {
    const size_t second = object.find('.', object.find('.') + 1);
    return second == std::string::npos ? object : object.substr(0, second + 1);
}

// By "OBJECT.NAME", all below the branches that the lines are in. An absent one holds nothing.
std::map<std::string, std::string> valuesNow(const std::vector<Line> &lines) {
    std::set<std::string> branches;
    for (const Line &line : lines) {
        branches.insert(branchOf(line.object));
    }
    std::map<std::string, std::string> values;
    for (const std::string &branch : branches) {
        const bool root = branch.find('.') + 1 == branch.size();
        try {
            for (const Object &object : get({{branch}}, root ? Reading::Leaf : Reading::Whole)) {
                for (const Parameter &parameter : object.parameters) {
                    values.emplace(std::string(withoutDot(object.name)) + "." + parameter.name, parameter.value);
                }
            }
        } catch (const Failure &failure) {
            if (failure.category() != Category::Absent) {
                throw;
            }
        }
    }
    return values;
}

// By the layer, by the file; "" where neither tells.
std::string annotationsOf(const Line &line) {
    const std::string own = definitionOf(line.object + line.parameter);
    return own.empty() ? line.annotations : own;
}

bool sayWritable(const std::string &annotations) {
    return (" " + annotations + " ").find(" rw ") != std::string::npos;
}

// By what tells first, in the end by the standard.
bool isReadOnly(const Line &line) {
    const std::string words = annotationsOf(line);
    return words.empty() ? isReadOnlyByStandard(line.object, line.parameter) : !sayWritable(words);
}

class Comparison {
  public:
    Comparison(const std::vector<Line> &lines, bool storeOnly) : now_(valuesNow(lines)), storeOnly_(storeOnly) {
        for (const Line &line : lines) {
            compare(line);
        }
    }

    std::vector<Object> changes;
    size_t same = 0; // of the changes: they are in force already
    Table table;
    Value changed = Value::list();
    Value skipped = Value::list();

  private:
    void compare(const Line &line) {
        const std::string path = line.object + line.parameter;
        const auto found = now_.find(path);
        if (found == now_.end()) {
            skip(path, "unknown to the gateway");
            return;
        }
        const std::string &from = found->second;
        const std::string to = spelledLike(typed(line.parameter, from), line.value);
        if (from == to) {
            storeSame(line);
            return;
        }
        if (isHidden(line.parameter, line.value) || isReadOnly(line)) {
            skip(path, isHidden(line.parameter, line.value) ? kReplaced : "read-only");
            return;
        }
        write(line, to);
        changed.push(Value::object({{"object", withoutDot(line.object)},
                                    {"parameter", line.parameter},
                                    {"from", shownValue(line.parameter, from)},
                                    {"to", shownValue(line.parameter, to)}}));
        table.rows.push_back({{path}, {shownText(line.parameter, from)}, {shownText(line.parameter, to)}});
    }

    void write(const Line &line, const std::string &value) {
        if (changes.empty() || changes.back().name != line.object) {
            changes.push_back({line.object});
        }
        changes.back().parameters.push_back({line.parameter, value});
    }

    // Another value may be stored for the next start. One that cannot be set would fail the message as a whole, and
    // types that gateways have do not take the empty value that means none.
    void storeSame(const Line &line) {
        if (storeOnly_ && !line.value.empty() && !isHidden(line.parameter, line.value) &&
            sayWritable(annotationsOf(line))) {
            write(line, now_.at(line.object + line.parameter));
            ++same;
        }
    }

    void skip(const std::string &path, const char *reason) {
        skipped.push(Value::object({{"parameter", path}, {"reason", reason}}));
    }

    std::map<std::string, std::string> now_;
    bool storeOnly_;
};

// A line for each reason, with the first parameters that it holds for; JSON names them all.
std::vector<std::string> notesOf(const Value &skipped) {
    std::map<std::string, std::vector<std::string>> byReason;
    for (const Value &item : skipped.items()) {
        byReason[item["reason"].text()].push_back(item["parameter"].text());
    }
    std::vector<std::string> notes;
    for (auto &[reason, parameters] : byReason) {
        const size_t all = parameters.size();
        parameters.resize(std::min(all, kNamed));
        notes.push_back("skipped, " + reason + ": " + joined(parameters) +
                        (all > kNamed ? " and " + std::to_string(all - kNamed) + " more" : ""));
    }
    return notes;
}

} // namespace

Report apply(const std::string &text, const std::string &file, bool dryRun, bool storeOnly) {
    Comparison comparison(parametersOf(text, file), storeOnly);
    const bool writes = !comparison.changes.empty() && !dryRun;
    if (writes) {
        change(comparison.changes, Change::Set, storeOnly);
    }
    Report result{.table = std::move(comparison.table)};
    result.table.headings = {"Parameter", "From", "To"};
    result.notes = notesOf(comparison.skipped);
    result.notes.push_back((writes ? "written: " : "different: ") + std::to_string(result.table.rows.size()) +
                           ", skipped: " + std::to_string(comparison.skipped.items().size()) +
                           (storeOnly ? ", the same and stored as well: " + std::to_string(comparison.same) : ""));
    if (dryRun && !comparison.changes.empty()) {
        result.notes.emplace_back("dry run: nothing written; whether the gateway takes it was not asked");
    }
    result.json["changes"] = std::move(comparison.changed);
    result.json["skipped"] = std::move(comparison.skipped);
    if (storeOnly) {
        result.json["same"] = comparison.same;
    }
    result.json["written"] = writes;
    result.json["applied"] = writes && !storeOnly;
    return result;
}

} // namespace pages::capture
