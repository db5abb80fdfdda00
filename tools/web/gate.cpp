// SPDX-License-Identifier: MIT
#include "gate.h"

#include "refusal.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace web {
namespace {

bool isJson(std::string_view contentType) {
    std::string type(contentType.substr(0, contentType.find(';')));
    type.erase(type.find_last_not_of(" \t") + 1);
    std::transform(type.begin(), type.end(), type.begin(), [](unsigned char c) { return tolower(c); });
    return type == "application/json";
}

void checkLength(const Request &request) {
    if (request.chunked || !request.contentLength) {
        throw Refusal(Status::LengthRequired, "the request says nothing of its length: give Content-Length");
    }
    if (*request.contentLength > kBodyMax) {
        throw Refusal(Status::ContentTooLarge, "the body is larger than " + std::to_string(kBodyMax) + " bytes");
    }
}

template <class Judging>
auto noting(RefusalLog &log, const Request &request, const Judging &judging) {
    try {
        return judging();
    } catch (const Refusal &refusal) {
        log.note(request, refusal);
        throw;
    }
}

} // namespace

Gate::Gate(OwnHosts hosts, Session &session, RefusalLog &log, bool readOnly)
    : hosts_(std::move(hosts)), session_(session), log_(log), readOnly_(readOnly) {}

void Gate::check(const Request &request) const {
    noting(log_, request, [&] { judge(request); });
}

std::string Gate::open(const std::string &token, const Request &request) const {
    return noting(log_, request, [&] { return session_.open(token, request); });
}

void Gate::judge(const Request &request) const {
    if (!hosts_.isOwn(request.host)) {
        throw Refusal(Status::MisdirectedRequest,
                      "this server does not answer to that Host; --host adds a name when it is started");
    }
    const Target target = parseTarget(request.target);
    if (isApi(target.path)) {
        session_.check(request);
        const Call call = parseCall(request.method, target);
        if (request.ifMatch && call.method != kPatch) {
            throw Refusal(Status::BadRequest, "If-Match is understood with PATCH only");
        }
        if (call.method != kGet) {
            checkChange(request, call);
        }
    } else if (methodOf(request.method) != kGet) {
        throw Refusal(Status::MethodNotAllowed, "only GET is possible here", {{"Allow", "GET"}});
    }
    if (request.chunked || request.contentLength.value_or(0) > kBodyMax) {
        checkLength(request);
    }
}

void Gate::checkChange(const Request &request, const Call &call) const {
    if (readOnly_ && !call.flag("dry_run")) {
        throw Refusal(Status::Forbidden, "this server was started with --read-only: only dry runs are possible");
    }
    if (!isFromOwnPage(request.host, request.origin, request.fetchSite)) {
        throw Refusal(Status::Forbidden, "a change must come from this server's own origin: its Origin header, or "
                                         "Sec-Fetch-Site: same-origin, is missing or another one");
    }
    if (call.method == kDelete) {
        return; // has no body
    }
    if (!isJson(request.contentType)) {
        throw Refusal(Status::UnsupportedMediaType, "a change must have Content-Type: application/json");
    }
    checkLength(request);
}

} // namespace web
