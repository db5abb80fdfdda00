// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/checked.h"
#include "pages/layer/call.h"
#include "pages/objects/hint.h"
#include "pages/objects/pages.h"
#include "pages/page.h"
#include "pages/secret.h"
#include "pages/text.h"

namespace pages::objects {
namespace {

constexpr size_t kAnswerSize = 128;

} // namespace

Report find(const Search &search) {
    char object[kAnswerSize] = "";
    char value[kAnswerSize] = "";
    const auto call = [&] {
        return zintu_GetValueFromDBInfo(checkedPath(search.table).c_str(), search.filter.c_str(), search.value.c_str(),
                                        search.wanted.c_str(), object, value);
    };
    const std::string none = search.table + ": no instance whose " + search.filter + " is " +
                             inQuotes(shownText(search.filter, search.value)) + " has a parameter " + search.wanted;
    try {
        hinting(search.table, [&] { return ask(call, {none}); });
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent || failure.code() == CALTOFAL_ABSENT_OBJECT) {
            throw;
        }
        throw withParameterHint(failure, search.table, {search.filter, search.wanted});
    }
    return pageOf({
        {"object", "Object", text(object)},
        {"value", search.wanted, shownValue(search.wanted, text(value))},
    });
}

} // namespace pages::objects
