// SPDX-License-Identifier: MIT
#include "pages/layer/call.h"

#include "caltofal.h"
#include "pages/layer/code.h"
#include "pages/layer/partial_answer.h"
#include "pages/text.h"

#include <algorithm>

namespace pages {
namespace {

bool isDecisive(const Request &request, std::initializer_list<std::string_view> beginnings) {
    const auto begins = [&](std::string_view beginning) {
        return std::any_of(request.objects.begin(), request.objects.end(),
                           [&](const std::string &object) { return object.starts_with(beginning); });
    };
    return beginnings.size() == 0 || std::any_of(beginnings.begin(), beginnings.end(), begins);
}

// The last failed request on which the result hangs; null when there is none.
const Request *culprit(std::span<const Request> asked, std::initializer_list<std::string_view> decisive) {
    const Request *found = nullptr;
    for (const Request &request : asked) {
        if (request.code != 0 && isDecisive(request, decisive)) {
            found = &request;
        }
    }
    return found;
}

// Failures of a call that answered all the same.
void tellHidden(std::span<const Request> asked) {
    const bool answered =
        std::any_of(asked.begin(), asked.end(), [](const Request &request) { return request.code == 0; });
    for (const Request &request : asked) {
        if (request.code == 0 || categoryOf(request.code) == Category::Absent) {
            continue;
        }
        const Failure failure = failureOf(request);
        if (!answered) {
            throw Failure(failure);
        }
        HiddenFailures::note(std::string(failure.what()) + "; what it tells is missing here");
    }
}

thread_local HiddenFailures *innermostFailures = nullptr;

} // namespace

Failure failureOf(const Request &request) {
    const std::string objects = objectNames(request);
    const std::string object(withoutDot(objects));
    std::string reason = reasonOf(request);
    if (reason.starts_with(object + ".")) { // of a parameter
        return {categoryOf(request.code), reason, objects, request.code};
    }
    if (const std::string again = object + ": "; reason.starts_with(again)) {
        reason.erase(0, again.size());
    }
    return {categoryOf(request.code), "request on " + objects + " failed: " + reason, objects, request.code};
}

HiddenFailures::HiddenFailures() : outer_(innermostFailures) {
    innermostFailures = this;
}

HiddenFailures::~HiddenFailures() {
    innermostFailures = outer_;
}

void HiddenFailures::note(const std::string &line) {
    std::vector<std::string> *notes = innermostFailures ? &innermostFailures->notes_ : nullptr;
    if (notes && std::find(notes->begin(), notes->end(), line) == notes->end()) {
        notes->push_back(line);
    }
}

int ask(const std::function<int()> &call, const Expectation &expectation) {
    const RequestLog log;
    const int result = call();
    if (result >= 0 || (expectation.tolerated != 0 && result == expectation.tolerated)) {
        tellHidden(log.requests());
        return result;
    }
    if (const Request *request = culprit(log.requests(), expectation.decisive)) {
        throw failureOf(*request);
    }
    if (result == -1) {
        throw Failure(Category::Absent, expectation.absent);
    }
    throw Failure(categoryOf(result), expectation.absent + ": " + meaningOf(result), {}, result);
}

std::function<int()> strictly(const std::function<int()> &call) {
    return [call] {
        const RequestLog log;
        const int result = call();
        const auto failed = [](const Request &one) {
            return one.code != 0 && !(one.code == CALTOFAL_ABSENT_OBJECT && PartialAnswers::areWanted());
        };
        const std::span<const Request> asked = log.requests();
        return std::any_of(asked.begin(), asked.end(), failed) ? -1 : result;
    };
}

int askEvery(const std::function<int()> &call) {
    return ask(strictly(call), {"the library failed"});
}

} // namespace pages
