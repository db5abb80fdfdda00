// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/checked.h"
#include "pages/layer/call.h"
#include "pages/layer/query.h"
#include "pages/network/pages.h"
#include "pages/text.h"

#include <set>
#include <sstream>

namespace pages {
namespace {

constexpr size_t kRecordSize = 128;

std::string recordedList(const std::string &object) {
    char layers[kRecordSize] = "";
    ask([&] { return ZintuGet_LowerLayers(object.c_str(), layers); }, {object + ": no lower layers"});
    return text(layers);
}

std::string wholeListOf(const std::string &object) {
    const std::vector<Object> found = get({{object, {{"LowerLayers"}}}}, Reading::Leaf);
    if (found.empty() || found.front().parameters.empty()) {
        throw Failure(Category::Absent, object + ": no lower layers", object);
    }
    return valueOf(found.front(), "LowerLayers");
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

} // namespace

Report lowerLayers(const std::string &object, const LowerLayers &how) {
    Report result{.json =
                      Value::object({{"object", withoutDot(checkedPath(object))}, {"lower_layers", Value::list()}})};
    Descent(result, how).below(object, 0);
    return result;
}

} // namespace pages
