// SPDX-License-Identifier: MIT
#include "api.h"

#include "answers.h"
#include "errors.h"
#include "page_file.h"
#include "pages/failure.h"
#include "pages/text.h"
#include "precondition.h"
#include "secret.h"

#include <algorithm>

namespace web {
namespace {

// What goes wrong is an answer too.
template <class Work>
Response answered(const Work &work) {
    try {
        return work();
    } catch (const Refusal &refusal) {
        return errorResponse(refusal);
    } catch (const pages::Failure &failure) {
        return errorResponse(failure);
    } catch (const std::exception &error) {
        return errorResponse(Refusal(Status::InternalError, error.what()));
    }
}

pages::Value found(pages::Value job, const Call &call) {
    if (job.isNull()) {
        throw Refusal(Status::NotFound, "there is no job " + call.argument);
    }
    return job;
}

// A dry run changes nothing.
bool isLogged(const Call &call) {
    return call.method != kGet && call.text("dry_run") != "1";
}

} // namespace

Api::Needs Api::needsOf(const Request &request) {
    try {
        const Target target = parseTarget(request.target);
        if (!isApi(target.path)) {
            return Needs::Nothing;
        }
        const Call call = parseCall(request.method, target);
        const Subject subject = call.resource->subject;
        if (subject == Subject::Index || subject == Subject::Jobs || subject == Subject::Job) {
            return Needs::Nothing;
        }
        return call.method == kGet && !call.resource->slow ? Needs::Page : Needs::Long;
    } catch (const Refusal &) {
        return Needs::Nothing;
    }
}

void Api::expect(const Request &request) {
    const Call call = parseCall(request.method, parseTarget(request.target));
    if (isLogged(call)) {
        log_.expect(call, request);
    }
}

Response Api::answer(const Request &request) {
    return answered([&] {
        const Target target = parseTarget(request.target);
        return isApi(target.path) ? answerCall(request, target) : answerFile(request, target);
    });
}

Response Api::answerCall(const Request &request, const Target &target) {
    Call call = parseCall(request.method, target);
    if (call.method == kGet) {
        takeBody(call, request.body);
        return tagged(answerRead(call), request.ifNoneMatch);
    }
    if (!isLogged(call)) {
        takeBody(call, request.body);
        return answerChange(call, request, [] {});
    }
    log_.expect(call, request);
    Response response = answered([&] {
        takeBody(call, request.body);
        log_.about(request, call.body);
        return answerChange(call, request, [&] { log_.tries(request); });
    });
    log_.end(request, response.status);
    return response;
}

Response Api::answerRead(const Call &call) {
    switch (call.resource->subject) {
    case Subject::Index:
        return index();
    case Subject::WifiSecret:
        return jsonResponse(secretOf(call));
    case Subject::Jobs:
        return jsonResponse(jobs_.all());
    case Subject::Job:
        return jsonResponse(found(jobs_.find(call.argument), call));
    default:
        return reportResponse(read(call));
    }
}

Response Api::answerChange(const Call &call, const Request &request, const std::function<void()> &begins) {
    if (call.method == kPatch) {
        return answerPatch(call, request, begins);
    }
    begins();
    if (call.method == kDelete) {
        return jsonResponse(found(jobs_.cancel(call.argument), call));
    }
    const pages::Value job = jobs_.start(std::string(call.resource->path.substr(1)), taskOf(call));
    Response response = jsonResponse(job, Status::Accepted);
    response.headers.push_back({"Location", std::string(kApi) + "/jobs/" + job["id"].text()});
    return response;
}

// What a client has read, and what the answer says that was there before, is what this change replaces.
Response Api::answerPatch(const Call &call, const Request &request, const std::function<void()> &begins) {
    const std::lock_guard turn(changes_);
    begins();
    checkPrecondition(call, request);
    return reportResponse(change(call));
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
    const auto isToken = [](const QueryItem &item) { return item.name == "token"; };
    const auto token = std::find_if(target.query.begin(), target.query.end(), isToken);
    if (target.path == "/" && token != target.query.end()) {
        if (std::count_if(token, target.query.end(), isToken) > 1) {
            throw Refusal(Status::BadRequest, "the URL has two tokens");
        }
        Response response{Status::SeeOther};
        response.headers = {{"Location", "/"}, {"Set-Cookie", gate_.open(token->value, request)}};
        return response;
    }
    const PageFile *file = findPageFile(target.path);
    if (!file) {
        throw Refusal(Status::NotFound, pages::inQuotes(target.path) + ": there is no such page");
    }
    return fileResponse(*file, request.ifNoneMatch);
}

} // namespace web
