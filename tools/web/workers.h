// SPDX-License-Identifier: MIT
// A few threads for what takes long, so that the threads of the connections stay free for the others.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace web {

class Workers {
  public:
    static constexpr size_t kThreads = 4;
    static constexpr size_t kWaitingMax = 64;

    Workers();
    Workers(const Workers &) = delete;
    Workers &operator=(const Workers &) = delete;
    ~Workers(); // does what still waits

    // False when too much waits already. Safe for many threads; `work` throws nothing.
    bool add(std::function<void()> work);

  private:
    void run();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    bool ending_ = false;
    std::vector<std::thread> threads_;
};

} // namespace web
