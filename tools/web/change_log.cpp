// SPDX-License-Identifier: MIT
#include "change_log.h"

#include "log_line.h"
#include "pages/text.h"
#include "refusal.h"

#include <algorithm>
#include <string_view>

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

void ChangeLog::expect(const Call &call, const Request &request) {
    const std::string_view url = request.target;
    const std::string text =
        request.method + " " + plain(url.substr(0, url.find('?'))) + (call.text("db_only") == "1" ? "?db_only=1" : "");
    const std::lock_guard lock(mutex_);
    if (find(request) == underWay_.end()) {
        underWay_.push_back({&request, text});
    }
}

void ChangeLog::about(const Request &request, const pages::Value &body) {
    const std::string names = listed(namesOf(body));
    const std::lock_guard lock(mutex_);
    find(request)->text += names;
}

void ChangeLog::tries(const Request &request) {
    const std::lock_guard lock(mutex_);
    if (closed_) {
        throw Refusal(Status::Unavailable, "the server ends: nothing is changed any more");
    }
    find(request)->isTried = true;
}

void ChangeLog::end(const Request &request, Status status) {
    const std::lock_guard lock(mutex_);
    const auto change = find(request);
    if (!change->isTold) {
        logLine(request.address, change->text, status);
    }
    underWay_.erase(change);
}

bool ChangeLog::close() {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    for (Change &change : underWay_) {
        change.isTold = true;
        logLine(change.request->address, change.text,
                change.isTried ? "unknown: ended while the gateway was asked" : "not begun: the server ended");
    }
    return !underWay_.empty();
}

std::vector<ChangeLog::Change>::iterator ChangeLog::find(const Request &request) {
    return std::find_if(underWay_.begin(), underWay_.end(),
                        [&](const Change &change) { return change.request == &request; });
}

} // namespace web
