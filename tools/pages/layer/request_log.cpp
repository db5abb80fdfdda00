// SPDX-License-Identifier: MIT
//
// The library's calls into libcal bind to the functions of the same names in the executable, which stand before all
// shared libraries in the search order; each passes its message on and notes what came back.
#include "pages/layer/request_log.h"

#include "caltofal.h"
#include "pages/layer/code.h"
#include "pages/layer/left_messages.h"
#include "pages/layer/message.h"
#include "pages/layer/partial_answer.h"
#include "pages/process/output.h"
#include "pages/secret.h"
#include "pages/text.h"

#include <cstring>
#include <dlfcn.h>

extern "C" int cal_getValue(MsgHeader *message);

namespace pages {
namespace {

using LayerCall = int (*)(MsgHeader *);

thread_local RequestLog *innermostLog = nullptr;

// What the sandbox's libcal says about the thread's last refusal. A device's has no such function.
auto findReason() {
    return reinterpret_cast<const char *(*)()>(dlsym(RTLD_DEFAULT, "cal_sandboxReason"));
}

std::vector<std::string> namesOf(const MsgHeader *message) {
    std::vector<std::string> names;
    const bool ofValues = (message->listFlags & CALTOFAL_VALUE_KINDS) != 0;
    if (!ofValues) {
        return names;
    }
    for (const ObjectNode *object = caltofal_nextObject(message, nullptr); object;
         object = caltofal_nextObject(message, object)) {
        names.emplace_back(object->name, strnlen(object->name, sizeof(object->name)));
    }
    return names;
}

// So that they stay out of what is shown of the library's own output.
void noteSecrets(const MsgHeader *message) {
    const bool ofValues = outputIsTaken() && (message->listFlags & CALTOFAL_VALUE_KINDS) != 0;
    for (const ObjectNode *object = nullptr; ofValues && (object = caltofal_nextObject(message, object));) {
        for (const ParamNode *param = nullptr; (param = caltofal_nextParam(object, param));) {
            noteSecret(text(param->name), text(param->value));
        }
    }
}

void trace(const Request &request) {
    std::string line = std::string(request.verb) + " " + objectNames(request) + " -> " + std::to_string(request.code);
    if (request.code != 0) {
        line += " (" + reasonOf(request) + ")";
    }
    output(Source::Request, line + "\n");
}

int passOn(const char *function, const char *verb, MsgHeader *message) {
    const auto call = reinterpret_cast<LayerCall>(dlsym(RTLD_NEXT, function));
    if (!call) {
        return CALTOFAL_NO_GATEWAY;
    }
    Request request{verb, namesOf(message), 0, {}};
    const bool inPart = PartialAnswers::areWanted() && message->mainOper == CALTOFAL_OPER_GET;
    const std::vector<Object> asked = inPart ? objectsOf(*message) : std::vector<Object>();
    noteSecrets(message);
    request.code = call(message);
    noteSecrets(message);
    LeftMessages::note(*message);
    static const auto reason = findReason();
    if (request.code != 0 && reason) {
        request.reason = reason();
    }
    trace(request);
    RequestLog::note(request);
    if (request.code == CALTOFAL_ABSENT_OBJECT && !asked.empty()) {
        request.code = answerInPart(message, asked, cal_getValue);
        LeftMessages::note(*message);
    }
    return request.code;
}

} // namespace

RequestLog::RequestLog() : outer_(innermostLog) {
    innermostLog = this;
}

RequestLog::~RequestLog() {
    innermostLog = outer_;
}

void RequestLog::note(const Request &request) {
    for (RequestLog *log = innermostLog; log; log = log->outer_) {
        log->requests_.push_back(request);
    }
}

std::string objectNames(const Request &request) {
    std::string names;
    for (const std::string &object : request.objects) {
        names += names.empty() ? "" : ", ";
        names += withoutDot(object);
    }
    return names;
}

std::string reasonOf(const Request &request) {
    return request.reason.empty() ? meaningOf(request.code) : request.reason;
}

bool isSandbox() {
    return findReason() != nullptr;
}

} // namespace pages

#define EXPORTED extern "C" __attribute__((visibility("default")))

EXPORTED int cal_getValue(MsgHeader *message) {
    return pages::passOn("cal_getValue", "get", message);
}

EXPORTED int cal_setValue(MsgHeader *message) {
    return pages::passOn("cal_setValue", "set", message);
}

EXPORTED int cal_setValueToDb(MsgHeader *message) {
    return pages::passOn("cal_setValueToDb", "store", message);
}
