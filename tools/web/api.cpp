// SPDX-License-Identifier: MIT
#include "api.h"

#include "call.h"
#include "page_file.h"

#include <algorithm>

namespace web {

bool Api::isSlow(const Request &request) {
    try {
        const Target target = parseTarget(request.target);
        return isApi(target.path) && parseCall(request.method, target).resource->slow;
    } catch (const Refusal &) {
        return false;
    }
}

Response Api::answer(const Request &request) {
    try {
        const Target target = parseTarget(request.target);
        return isApi(target.path) ? answerCall(request, target) : answerFile(request, target);
    } catch (const Refusal &refusal) {
        return errorResponse(refusal);
    } catch (const std::exception &error) {
        return errorResponse(Refusal(Status::InternalError, error.what()));
    }
}

Response Api::answerCall(const Request &request, const Target &target) {
    Call call = parseCall(request.method, target);
    takeBody(call, request.body);
    if (call.resource->subject == Subject::Index) {
        return tagged(index(), request.ifNoneMatch);
    }
    throw Refusal(Status::NotFound, target.path + ": there is no such resource");
}

// A line for each resource.
Response Api::index() const {
    Response response;
    for (const Resource &resource : resources()) {
        const std::string methods = methodNames(resource, gate_.readOnly());
        if (!methods.empty()) {
            response.body += (response.body.empty() ? "{\n  \"" : ",\n  \"") + std::string(kApi) +
                             std::string(resource.path) + "\": \"" + methods + "\"";
        }
    }
    response.body += "\n}\n";
    return response;
}

Response Api::answerFile(const Request &request, const Target &target) {
    const auto token = std::find_if(target.query.begin(), target.query.end(),
                                    [](const QueryItem &item) { return item.name == "token"; });
    if (target.path == "/" && token != target.query.end()) {
        Response response{Status::SeeOther};
        response.headers = {{"Location", "/"}, {"Set-Cookie", session_.open(token->value, request)}};
        return response;
    }
    const PageFile *file = findPageFile(target.path);
    if (!file) {
        throw Refusal(Status::NotFound, target.path + ": there is no such page");
    }
    return fileResponse(*file, request.ifNoneMatch);
}

} // namespace web
