// SPDX-License-Identifier: MIT
#include "wrong_tries.h"

namespace web {
namespace {

using std::chrono::steady_clock;

constexpr size_t kAddressesMax = 256;

} // namespace

bool WrongTries::mustWait(const std::string &address, bool right) {
    const std::lock_guard lock(mutex_);
    const auto found = counts_.find(address);
    const auto now = steady_clock::now();
    if (found == counts_.end() || found->second.wrong < kFree || now >= found->second.last + kWait) {
        return false;
    }
    std::optional<steady_clock::time_point> &refused = found->second.rightRefused;
    if (right && !refused) {
        refused = now;
    }
    return !right || now < *refused + kWait;
}

void WrongTries::noteWrong(const std::string &address) {
    const std::lock_guard lock(mutex_);
    forgetOld();
    Count &count = counts_[address];
    ++count.wrong;
    count.last = steady_clock::now();
}

void WrongTries::noteRight(const std::string &address) {
    const std::lock_guard lock(mutex_);
    const auto found = counts_.find(address);
    if (found != counts_.end()) {
        found->second.wrong = 0;
    }
}

// Many addresses cannot fill the memory: the one that was silent longest goes.
void WrongTries::forgetOld() {
    if (counts_.size() < kAddressesMax) {
        return;
    }
    auto oldest = counts_.begin();
    for (auto it = counts_.begin(); it != counts_.end(); ++it) {
        oldest = it->second.last < oldest->second.last ? it : oldest;
    }
    counts_.erase(oldest);
}

} // namespace web
