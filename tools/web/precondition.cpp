// SPDX-License-Identifier: MIT
#include "precondition.h"

#include "answers.h"
#include "etag.h"
#include "refusal.h"
#include "response.h"

#include <algorithm>

namespace web {
namespace {

bool names(const Call &call, std::string_view name) {
    return std::any_of(call.query.begin(), call.query.end(), [&](const QueryItem &item) { return item.name == name; });
}

// The GET whose tag the client has.
Call readingOf(const Call &change) {
    Call reading = change;
    reading.method = kGet;
    if (change.resource->subject == Subject::Objects && !names(change, "path")) {
        for (const pages::Member &object : change.body.members()) {
            reading.query.push_back({"path", object.key});
        }
    }
    return reading;
}

} // namespace

void checkPrecondition(const Call &call, const Request &request) {
    if (!request.ifMatch) {
        if (names(call, "path") || names(call, "leaf")) {
            throw Refusal(Status::BadRequest, "path and leaf say what If-Match is about, and there is no If-Match");
        }
        return;
    }
    const std::string now = etagOf(jsonResponse(read(readingOf(call)).json).body);
    const std::optional<bool> allowed = etagAllows(*request.ifMatch, now);
    if (!allowed) {
        throw Refusal(Status::BadRequest, "If-Match is neither * nor a list of entity tags in quotes");
    }
    if (!*allowed) {
        throw Refusal(Status::PreconditionFailed,
                      "it has changed since it was read: nothing is written; read it again and decide anew");
    }
}

} // namespace web
