// SPDX-License-Identifier: MIT
#include "pages/capture/line.h"
#include "pages/capture/pages.h"
#include "pages/failure.h"
#include "pages/layer/definition.h"
#include "pages/secret.h"
#include "pages/text.h"

#include <map>
#include <set>
#include <sstream>

namespace pages::capture {
namespace {

constexpr const char *kReplaced = "its secret was replaced in the file";

std::vector<Line> linesOf(const std::string &text) {
    std::vector<Line> lines;
    std::istringstream in(text);
    size_t number = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        try {
            line.erase(line.find_last_not_of('\r') + 1);
            if (std::optional<Line> parsed = parameterOf(line)) {
                lines.push_back(std::move(*parsed));
            }
        } catch (const Usage &usage) {
            throw Usage("line " + std::to_string(number) + ": " + usage.what());
        }
    }
    return lines;
}

// By "OBJECT.NAME", all below the objects that the lines begin with. An absent one holds nothing.
std::map<std::string, std::string> valuesNow(const std::vector<Line> &lines) {
    std::set<std::string> roots;
    for (const Line &line : lines) {
        roots.insert(line.object.substr(0, line.object.find('.', line.object.find('.') + 1) + 1));
    }
    std::map<std::string, std::string> values;
    for (const std::string &root : roots) {
        try {
            for (const Object &object : get({{root}}, Reading::Whole)) {
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

bool isReadOnly(const Line &line) {
    const std::string own = definitionOf(line.object + line.parameter);
    const std::string words = " " + (own.empty() ? line.annotations : own) + " ";
    return words.find(" rw ") == std::string::npos && words != "  ";
}

bool isReplaced(const Line &line) {
    return isSecret(line.parameter) && !line.value.empty() &&
           (line.value == kHidden || line.value.find_first_not_of('0') == std::string::npos);
}

class Comparison {
  public:
    explicit Comparison(const std::vector<Line> &lines) : now_(valuesNow(lines)) {
        for (const Line &line : lines) {
            compare(line);
        }
    }

    std::vector<Object> changes;
    Table table;
    Value changed = Value::list();
    Value skipped = Value::list();

  private:
    void compare(const Line &line) {
        const std::string path = line.object + line.parameter;
        const auto found = now_.find(path);
        if (found == now_.end()) {
            skip(path, "the gateway does not have it");
            return;
        }
        const std::string &from = found->second;
        const std::string to = spelledLike(typed(line.parameter, from), line.value);
        if (from == to) {
            return;
        }
        if (isReplaced(line) || isReadOnly(line)) {
            skip(path, isReplaced(line) ? kReplaced : "it is read-only");
            return;
        }
        if (changes.empty() || changes.back().name != line.object) {
            changes.push_back({line.object});
        }
        changes.back().parameters.push_back({line.parameter, to});
        changed.push(Value::object({{"object", withoutDot(line.object)},
                                    {"parameter", line.parameter},
                                    {"from", shownValue(line.parameter, from)},
                                    {"to", shownValue(line.parameter, to)}}));
        table.rows.push_back({{path}, {shownText(line.parameter, from)}, {shownText(line.parameter, to)}});
    }

    void skip(const std::string &path, const char *reason) {
        skipped.push(Value::object({{"parameter", path}, {"reason", reason}}));
    }

    std::map<std::string, std::string> now_;
};

// Secrets that were replaced go without saying which.
std::vector<std::string> notesOf(const Value &skipped) {
    std::vector<std::string> notes;
    size_t secrets = 0;
    for (const Value &item : skipped.items()) {
        if (item["reason"].text() == kReplaced) {
            ++secrets;
        } else {
            notes.push_back("skipped " + item["parameter"].text() + ": " + item["reason"].text());
        }
    }
    if (secrets != 0) {
        notes.push_back("skipped secrets that were replaced in the file: " + std::to_string(secrets));
    }
    return notes;
}

} // namespace

Report apply(const std::string &text, bool dryRun, bool storeOnly) {
    Comparison comparison(linesOf(text));
    const bool writes = !comparison.changes.empty() && !dryRun;
    if (writes) {
        change(comparison.changes, Change::Set, storeOnly);
    }
    Report result{.table = std::move(comparison.table)};
    result.table.headings = {"Parameter", "From", "To"};
    result.notes = notesOf(comparison.skipped);
    result.notes.push_back((writes ? "written: " : "different: ") + std::to_string(result.table.rows.size()) +
                           ", skipped: " + std::to_string(comparison.skipped.items().size()));
    result.json["changes"] = std::move(comparison.changed);
    result.json["skipped"] = std::move(comparison.skipped);
    result.json["written"] = writes;
    result.json["applied"] = writes && !storeOnly;
    return result;
}

} // namespace pages::capture
