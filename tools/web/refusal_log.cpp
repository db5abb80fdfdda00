// SPDX-License-Identifier: MIT
#include "refusal_log.h"

#include "log_line.h"
#include "resource.h"
#include "target.h"

#include <algorithm>
#include <iterator>

namespace web {
namespace {

using std::chrono::steady_clock;

constexpr size_t kCountsMax = 256;
constexpr const char *kOthers = "other addresses"; // than those that are counted

// What is noted of every method, with its reason, which is the server's own text.
constexpr Status kNoted[] = {Status::Unauthorized, Status::Forbidden, Status::UnsupportedMediaType,
                             Status::MisdirectedRequest, Status::Unavailable};

// The resource as the server's own table writes it: what the client wrote may hold a token, or anything.
std::string resourceOf(const Request &request) {
    try {
        const std::string path = parseTarget(request.target).path;
        const Resource *resource = isApi(path) ? findRoute(path).resource : nullptr;
        return resource ? std::string(kApi) + std::string(resource->path) : isApi(path) ? "/api" : "/";
    } catch (const Refusal &) {
        return "?";
    }
}

} // namespace

RefusalLog::~RefusalLog() {
    settle(steady_clock::time_point::max());
}

void RefusalLog::note(const Request &request, const Refusal &refusal) {
    const unsigned asked = methodOf(request.method);
    const bool isNoted = std::find(std::begin(kNoted), std::end(kNoted), refusal.status()) != std::end(kNoted);
    if (asked == kGet && !isNoted) {
        return;
    }
    const auto now = steady_clock::now();
    const std::lock_guard lock(mutex_);
    settle(now - kPause);
    std::pair key(request.address, refusal.status());
    if (counts_.size() >= kCountsMax && !counts_.contains(key)) {
        key.first = kOthers;
    }
    const auto [count, isNew] = counts_.try_emplace(key, Count{now});
    if (!isNew) {
        ++count->second.more;
        return;
    }
    const std::string method = asked == 0 ? "?" : request.method;
    // The other refusals quote what the client has sent.
    const std::string why = isNoted ? std::string(": ") + refusal.what() : "";
    logLine(key.first, "refused " + method + " " + resourceOf(request) + why, key.second);
}

void RefusalLog::settle(Time last) {
    for (auto it = counts_.begin(); it != counts_.end();) {
        const auto &[key, count] = *it;
        if (count.since > last) {
            ++it;
            continue;
        }
        if (count.more > 0) {
            logLine(key.first, "refused " + std::to_string(count.more) + " more", key.second);
        }
        it = counts_.erase(it);
    }
}

} // namespace web
