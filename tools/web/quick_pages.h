// SPDX-License-Identifier: MIT
// Which pages of the gateway are made at once, by the thread that serves the connection. To hand a page over to another
// thread and back takes time; but a gateway that needs seconds would keep all connections of the thread waiting.
#pragma once

#include <chrono>
#include <mutex>
#include <set>
#include <string>

namespace web {

// Safe for many threads.
class QuickPages {
  public:
    static constexpr std::chrono::milliseconds kQuick{50};
    static constexpr size_t kKnownMax = 64;
    static constexpr size_t kTargetMax = 256; // bytes; longer ones are not remembered

    // Whether a page was quick the last time, and none is being made at once: then that one is, until made().
    bool claim(const std::string &target);

    // Takes note of how long a page took, wherever it was made. After a slow one none is known as quick any more: it is
    // the gateway that has become slow.
    void made(const std::string &target, std::chrono::steady_clock::duration took, bool claimed);

  private:
    std::mutex mutex_;
    std::set<std::string> quick_;
    bool isClaimed_ = false;
};

} // namespace web
