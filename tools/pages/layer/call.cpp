// SPDX-License-Identifier: MIT
#include "pages/layer/call.h"

#include "pages/layer/code.h"
#include "pages/layer/request_log.h"

#include <algorithm>

namespace cli {
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

Failure failureOf(const Request &request) {
    const std::string objects = objectNames(request);
    const std::string again = objects.substr(0, objects.find_last_not_of('.') + 1) + ": ";
    std::string reason = reasonOf(request);
    if (reason.starts_with(again)) {
        reason.erase(0, again.size());
    }
    return {exitOf(request.code), "request on " + objects + " failed: " + reason, objects, request.code};
}

} // namespace

int ask(const std::function<int()> &call, const Expectation &expectation) {
    const size_t before = requests().size();
    const int result = call();
    if (result >= 0 || (expectation.tolerated != 0 && result == expectation.tolerated)) {
        return result;
    }
    const std::span<const Request> asked = requests().subspan(before);
    if (const Request *request = culprit(asked, expectation.decisive)) {
        throw failureOf(*request);
    }
    if (result == -1) {
        throw Failure(Exit::Absent, expectation.absent);
    }
    throw Failure(exitOf(result), expectation.absent + ": " + meaningOf(result), {}, result);
}

int askEvery(const std::function<int()> &call) {
    const auto strict = [&] {
        const size_t before = requests().size();
        const int result = call();
        const std::span<const Request> asked = requests().subspan(before);
        return std::any_of(asked.begin(), asked.end(), [](const Request &one) { return one.code != 0; }) ? -1 : result;
    };
    return ask(strict, {"the library failed"});
}

} // namespace cli
