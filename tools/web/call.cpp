// SPDX-License-Identifier: MIT
#include "call.h"

#include "body.h"
#include "pages/failure.h"
#include "pages/text.h"
#include "refusal.h"

#include <algorithm>

namespace web {
namespace {

// Whether `names`, a blank between them and one at the end, has it.
bool hasName(std::string_view names, const std::string &name) {
    return !name.empty() && name.find(' ') == std::string::npos &&
           (" " + std::string(names)).find(" " + name + " ") != std::string::npos;
}

void checkQuery(const Call &call) {
    for (const QueryItem &item : call.query) {
        const bool isOfOthers = hasName(call.method == kGet ? "dry_run db_only " : "where empty ", item.name);
        if (!hasName(call.resource->queries, item.name) || isOfOthers) {
            throw Refusal(Status::BadRequest, "\"" + item.name + "\" is not understood in this URL's query");
        }
    }
}

} // namespace

std::string Call::text(std::string_view name) const {
    std::string last;
    for (const QueryItem &item : query) {
        last = item.name == name ? item.value : last;
    }
    return last;
}

// A flag that is not said clearly is refused: a change that was to be tried only must not be made.
bool Call::flag(std::string_view name) const {
    const auto isWanted = [name](const QueryItem &item) { return item.name == name; };
    const auto found = std::find_if(query.begin(), query.end(), isWanted);
    if (found == query.end()) {
        return false;
    }
    if ((found->value != "1" && found->value != "0") || std::count_if(query.begin(), query.end(), isWanted) > 1) {
        throw Refusal(Status::BadRequest, std::string(name) + " is 1 or 0, given once");
    }
    return found->value == "1";
}

Call parseCall(std::string_view method, const Target &target) {
    Route route = findRoute(target.path);
    if (!route.resource) {
        throw Refusal(Status::NotFound,
                      pages::inQuotes(target.path) + ": there is no such resource; GET /api/v1 lists them");
    }
    Call call{route.resource, methodOf(method), std::move(route.argument), target.query};
    if ((call.method & route.resource->methods) == 0) {
        throw Refusal(Status::MethodNotAllowed,
                      pages::inQuotes(method) + " is not possible here: " + methodNames(*route.resource, false) + " is",
                      {{"Allow", methodNames(*route.resource, false)}});
    }
    checkQuery(call);
    return call;
}

void takeBody(Call &call, std::string_view body) {
    if (call.method == kGet || call.method == kDelete) {
        if (!body.empty()) {
            throw pages::Usage("a body is not understood here");
        }
        return;
    }
    call.body = parseBody(body);
}

} // namespace web
