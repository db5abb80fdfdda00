// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/checked.h"
#include "pages/layer/call.h"
#include "pages/layer/query.h"
#include "pages/network/pages.h"
#include "pages/objects/hint.h"
#include "pages/objects/select.h"
#include "pages/text.h"

#include <algorithm>
#include <optional>
#include <set>
#include <sstream>

namespace pages {
namespace {

constexpr size_t kRecordSize = 128;
constexpr const char *kList = "LowerLayers";

std::string recordedList(const std::string &object) {
    char layers[kRecordSize] = "";
    ask([&] { return ZintuGet_LowerLayers(object.c_str(), layers); }, {object + ": no lower layers"});
    return text(layers);
}

// The object of which the library answers: where one has no lower layers itself, the first below it that has.
std::optional<Object> answering(const std::string &object) {
    const std::vector<Object> found = get({{object, {{kList}}}}, Reading::Whole);
    const auto first =
        std::find_if(found.begin(), found.end(), [](const Object &one) { return objects::has(one, kList); });
    return first == found.end() ? std::nullopt : std::optional(*first);
}

std::string wholeListOf(const std::string &object) {
    const std::optional<Object> found = answering(object);
    if (!found) {
        throw Failure(Category::Absent, object + ": no lower layers", object);
    }
    return valueOf(*found, kList);
}

// The paths of a list, as answers name objects; with `cut`, without the last one, of which a part is missing.
std::vector<std::string> pathsOf(const std::string &list, bool cut) {
    std::vector<std::string> paths;
    std::istringstream parts(list);
    for (std::string path; std::getline(parts, path, ',');) {
        path.erase(0, path.find_first_not_of(' '));
        if (!path.empty()) {
            paths.emplace_back(withoutDot(path));
        }
    }
    if (cut && !paths.empty()) {
        paths.pop_back();
    }
    return paths;
}

class Descent {
  public:
    Descent(Report &result, const LowerLayers &how) : result_(result), how_(how) {}

    // What is directly below an object, each path once, and where that is wanted, what is below that.
    void below(const std::string &object, size_t depth) {
        const std::vector<std::string> paths = how_.whole ? pathsOf(wholeListOf(object), false) : recordOf(object);
        if (how_.walk && !how_.whole && paths.size() > 1) {
            result_.notes.push_back(object + " has several: the walk goes on below the first; --all walks them all");
        }
        for (size_t i = 0; i < paths.size(); ++i) {
            if (!seen_.insert(paths[i]).second) {
                continue;
            }
            result_.json["lower_layers"].push(paths[i]);
            result_.table.rows.push_back({{std::string(how_.whole ? 2 * depth : 0, ' ') + paths[i]}});
            if (how_.walk && (how_.whole || i == 0)) {
                goOn(paths[i], depth + 1);
            }
        }
    }

  private:
    // An object without lower layers is where a walk ends.
    void goOn(const std::string &object, size_t depth) {
        try {
            below(object, depth);
        } catch (const Failure &failure) {
            if (failure.category() != Category::Absent) {
                throw;
            }
            if (failure.code() == CALTOFAL_ABSENT_OBJECT) {
                result_.notes.emplace_back(failure.what());
            }
        }
    }

    std::vector<std::string> recordOf(const std::string &object) {
        const std::string list = recordedList(object);
        const bool cut = list.size() >= kRecordSize - 1 && wholeListOf(object).size() > list.size();
        if (cut) {
            result_.notes.push_back(std::string(withoutDot(object)) + ": the list is cut at the " +
                                    std::to_string(kRecordSize - 1) +
                                    " characters of the library's record; --all shows the whole one");
        }
        return pathsOf(list, cut);
    }

    Report &result_;
    const LowerLayers how_;
    std::set<std::string> seen_;
};

void noteOther(const std::string &object, std::vector<std::string> &notes) {
    const std::optional<Object> found = answering(object);
    const std::string asked(withoutDot(object));
    if (found && withoutDot(found->name) == asked) {
        return;
    }
    notes.push_back(asked + (instanceOf(asked) == 0 ? " names no instance" : " has no lower layers itself") +
                    (found ? ": this is what " + std::string(withoutDot(found->name)) + " has, the first one there"
                           : ", and nothing below it has lower layers"));
}

} // namespace

Report lowerLayers(const std::string &object, const LowerLayers &how) {
    Report result{.json =
                      Value::object({{"object", withoutDot(checkedPath(object))}, {"lower_layers", Value::list()}})};
    objects::hinting(object, [&] {
        Descent(result, how).below(object, 0);
        noteOther(object, result.notes);
    });
    return result;
}

} // namespace pages
