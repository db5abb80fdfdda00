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

    Workers();
    Workers(const Workers &) = delete;
    Workers &operator=(const Workers &) = delete;
    ~Workers(); // does what still waits

    // Safe for many threads. `work` throws nothing. Its caller sees to it that not too much waits.
    void add(std::function<void()> work);

    // Whether there is nothing that one of them does.
    bool areIdle();

  private:
    void run();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    size_t busy_ = 0;
    bool ending_ = false;
    std::vector<std::thread> threads_;
};

} // namespace web
