// SPDX-License-Identifier: MIT
#include "quick_pages.h"

namespace web {

bool QuickPages::claim(const std::string &target) {
    const std::lock_guard lock(mutex_);
    const bool isFree = !isClaimed_ && quick_.contains(target);
    isClaimed_ = isClaimed_ || isFree;
    return isFree;
}

void QuickPages::made(const std::string &target, std::chrono::steady_clock::duration took, bool claimed) {
    const std::lock_guard lock(mutex_);
    isClaimed_ = isClaimed_ && !claimed;
    if (took > kQuick) {
        quick_.clear();
    } else if (target.size() <= kTargetMax && quick_.size() < kKnownMax) {
        quick_.insert(target);
    }
}

} // namespace web
