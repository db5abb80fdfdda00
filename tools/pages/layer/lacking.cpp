// SPDX-License-Identifier: MIT
#include "pages/layer/lacking.h"

#include "caltofal.h"
#include "pages/layer/partial_answer.h"
#include "pages/text.h"

#include <algorithm>

namespace pages {
namespace {

bool isRefused(const Request &request) {
    return request.code == CALTOFAL_ABSENT_OBJECT;
}

bool liesIn(std::string_view object, std::string_view other) {
    return object.size() > other.size() && object.starts_with(other) && object[other.size()] == '.';
}

} // namespace

int Lacking::ask(const std::function<int()> &call, const Expectation &expectation) {
    const RequestLog log;
    const auto inPart = [&] {
        const int result = call();
        const std::span<const Request> asked = log.requests();
        const bool told = result >= 0 || (expectation.tolerated != 0 && result == expectation.tolerated);
        if (told || std::none_of(asked.begin(), asked.end(), isRefused)) {
            return result;
        }
        const PartialAnswers partial;
        return call();
    };
    const int result = pages::ask(inPart, expectation);
    add(log.requests());
    return result;
}

// Of several objects of one request it is not known which the gateway lacks.
void Lacking::add(std::span<const Request> asked) {
    for (const Request &request : asked) {
        answered_ = answered_ || request.code == 0;
        if (!isRefused(request)) {
            continue;
        }
        first_ = first_ ? first_ : request;
        if (request.objects.size() == 1 && !has(request.objects.front())) {
            objects_.emplace_back(withoutDot(request.objects.front()));
        }
    }
}

bool Lacking::has(std::string_view object) const {
    return std::find(objects_.begin(), objects_.end(), withoutDot(object)) != objects_.end();
}

void Lacking::needNot(std::string_view object) {
    std::erase(objects_, object);
}

bool Lacking::needNotBelow(std::string_view path) {
    return std::erase_if(objects_, [path](const std::string &object) { return object.starts_with(path); }) != 0;
}

void Lacking::name(std::vector<std::string> &notes) const {
    std::vector<std::string> named = objects_;
    std::erase_if(named, [&](const std::string &object) {
        return std::any_of(objects_.begin(), objects_.end(),
                           [&](const std::string &other) { return liesIn(object, other); });
    });
    if (!named.empty()) {
        notes.push_back("the gateway lacks " + joined(named) +
                        (named.size() == 1 ? "; what it tells" : "; what they tell") + " is missing here" +
                        first_->reason.substr(explanationIn(first_->reason)));
    }
}

void Lacking::tell(std::vector<std::string> &notes) const {
    if (first_ && !answered_) {
        throw failureOf(*first_);
    }
    name(notes);
}

} // namespace pages
