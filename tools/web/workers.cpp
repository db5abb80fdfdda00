// SPDX-License-Identifier: MIT
#include "workers.h"

#include <utility>

namespace web {

Workers::Workers() {
    for (size_t i = 0; i < kThreads; ++i) {
        threads_.emplace_back([this] { run(); });
    }
}

Workers::~Workers() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    for (std::thread &thread : threads_) {
        thread.join();
    }
}

void Workers::add(std::function<void()> work) {
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(std::move(work));
    }
    changed_.notify_one();
}

bool Workers::areIdle() {
    const std::lock_guard lock(mutex_);
    return busy_ == 0 && waiting_.empty();
}

void Workers::run() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
        if (waiting_.empty()) {
            return;
        }
        const std::function<void()> work = std::move(waiting_.front());
        waiting_.pop_front();
        ++busy_;
        lock.unlock();
        work();
        lock.lock();
        --busy_;
    }
}

} // namespace web
