// SPDX-License-Identifier: MIT
// What takes long: a scan, a WPS run, a mesh synchronisation. Each has a thread of its own, and is asked how it goes.
#pragma once

#include "pages/process/wait.h"
#include "pages/report.h"

#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

namespace web {

// Safe for many threads.
class Jobs {
  public:
    static constexpr size_t kRunningMax = 8;
    static constexpr size_t kKeptMax = 32; // running and ended ones

    using Work = std::function<pages::Report(pages::Wait &)>;

    struct Task {
        Work work;
        std::string subject = {}; // what it works on: of a kind, one at a time
    };

    Jobs();
    Jobs(const Jobs &) = delete;
    Jobs &operator=(const Jobs &) = delete;
    ~Jobs(); // cancels all, and waits for them

    // Begins; answers the job as find() does. Throws Refusal (503) when too many run, or one of that kind on the same
    // subject.
    pages::Value start(std::string kind, Task task);

    // {"id", "kind", "state", "elapsed", "of", "result", "notes", "error"}: state is "running", "done", "failed" or
    // "cancelled"; elapsed and the most that it takes in seconds, null where that is not known; what it found, as the
    // command line prints it, and its notes on that, or why it failed. Null where there is no such job.
    pages::Value find(std::string_view id);

    // Asks a job to end, and answers it as find() does.
    pages::Value cancel(std::string_view id);

    // All that are kept, the oldest first: {"jobs": [...]}, without results.
    pages::Value all();

    // Asks all to end.
    void cancelAll();

  private:
    class Job;

    Job *jobOf(std::string_view id); // with the mutex held
    void makeRoom();                 // likewise, as the next
    void checkTurn(const std::string &kind, const std::string &subject);

    std::mutex mutex_;
    std::list<Job> jobs_;
    unsigned long last_ = 0;
};

} // namespace web
