// SPDX-License-Identifier: MIT
#include "change_log.h"

#include "log_line.h"
#include "pages/text.h"
#include "refusal.h"

#include <vector>

namespace web {
namespace {

constexpr size_t kNamesMax = 1000; // bytes of a line that names take

std::vector<std::string> namesOf(const pages::Value &body) {
    std::vector<std::string> names;
    for (const auto &[name, value] : body.members()) {
        if (!value.isObject()) {
            names.push_back(name);
        }
        for (const auto &[parameter, unused] : value.members()) {
            names.push_back(std::string(pages::withoutDot(name)) + "." + parameter);
        }
    }
    return names;
}

// " NAME,NAME and 3 more", "" for none.
std::string listed(const std::vector<std::string> &names) {
    std::string text;
    for (size_t i = 0; i < names.size(); ++i) {
        const std::string name = plain(names[i]);
        if (i > 0 && text.size() + name.size() > kNamesMax) {
            return text + " and " + std::to_string(names.size() - i) + " more";
        }
        text += (i == 0 ? " " : ",") + name;
    }
    return text;
}

} // namespace

ChangeLog::Handle ChangeLog::begin(const Request &request) {
    const std::string text = request.method + " " + plain(request.target);
    const std::lock_guard lock(mutex_);
    return underWay_.insert(underWay_.end(), {request.address, text});
}

void ChangeLog::about(Handle change, const pages::Value &body) {
    const std::string names = listed(namesOf(body));
    const std::lock_guard lock(mutex_);
    change->text += names;
}

void ChangeLog::tries(Handle change) {
    const std::lock_guard lock(mutex_);
    if (closed_) {
        throw Refusal(Status::Unavailable, "the server ends: nothing is changed any more");
    }
    change->isTried = true;
}

void ChangeLog::end(Handle change, Status status) {
    const std::lock_guard lock(mutex_);
    if (!change->isTold) {
        logLine(change->address, change->text, status);
    }
    underWay_.erase(change);
}

bool ChangeLog::close() {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    for (Change &change : underWay_) {
        change.isTold = true;
        logLine(change.address, change.text,
                change.isTried ? "unknown: ended while the gateway was asked" : "not begun: the server ended");
    }
    return !underWay_.empty();
}

} // namespace web
