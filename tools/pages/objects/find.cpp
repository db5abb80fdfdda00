// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/checked.h"
#include "pages/layer/call.h"
#include "pages/objects/hint.h"
#include "pages/objects/pages.h"
#include "pages/page.h"
#include "pages/secret.h"
#include "pages/similar.h"
#include "pages/text.h"

#include <algorithm>
#include <functional>

namespace pages::objects {
namespace {

constexpr size_t kAnswerSize = 128;

// What may be meant by a parameter that no instance has; "" where all have it.
std::string hintOf(const Search &search) {
    const std::vector<std::string> names = namesIn(search.table);
    for (const std::string &name : {search.filter, search.wanted}) {
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            return didYouMean(name, names);
        }
    }
    return "";
}

void askWithHint(const Search &search, const std::function<int()> &call, const std::string &absent) {
    try {
        ask(call, {absent});
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent || failure.code() == CALTOFAL_ABSENT_OBJECT) {
            throw withHint(failure, search.table);
        }
        throw Failure(failure.category(), failure.what() + hintOf(search), failure.object(), failure.code());
    }
}

} // namespace

Report find(const Search &search) {
    char object[kAnswerSize] = "";
    char value[kAnswerSize] = "";
    const auto call = [&] {
        return zintu_GetValueFromDBInfo(checkedPath(search.table).c_str(), search.filter.c_str(), search.value.c_str(),
                                        search.wanted.c_str(), object, value);
    };
    askWithHint(search, call,
                search.table + ": no instance whose " + search.filter + " is " +
                    inQuotes(shownText(search.filter, search.value)) + " has a parameter " + search.wanted);
    return pageOf({
        {"object", "Object", text(object)},
        {"value", search.wanted, shownValue(search.wanted, text(value))},
    });
}

} // namespace pages::objects
