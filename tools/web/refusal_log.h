// SPDX-License-Identifier: MIT
// Lines of the log for requests that were turned away before anything was done: wrong tokens, foreign pages, foreign
// names. Whoever sends many of them cannot fill the log.
#pragma once

#include "refusal.h"
#include "request.h"

#include <chrono>
#include <map>
#include <mutex>
#include <string>
#include <utility>

namespace web {

// Safe for many threads.
class RefusalLog {
  public:
    // From one address with one status a line, and then how many more there were.
    static constexpr std::chrono::seconds kPause{10};

    RefusalLog() = default;
    RefusalLog(const RefusalLog &) = delete;
    RefusalLog &operator=(const RefusalLog &) = delete;
    ~RefusalLog(); // says what is left to say

    // Of what only asked to read, statuses other than 401, 403, 415, 421 and 503 are not written.
    void note(const Request &request, const Refusal &refusal);

  private:
    using Time = std::chrono::steady_clock::time_point;
    struct Count {
        Time since;
        size_t more = 0;
    };
    void settle(Time last); // with the mutex held

    std::mutex mutex_;
    std::map<std::pair<std::string, Status>, Count> counts_;
};

} // namespace web
