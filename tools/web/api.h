// SPDX-License-Identifier: MIT
// Answers requests that have passed the gate.
#pragma once

#include "call.h"
#include "gate.h"
#include "jobs.h"
#include "response.h"

#include <mutex>

namespace web {

// Safe for many threads.
class Api {
  public:
    explicit Api(const Gate &gate) : gate_(gate) {}

    // Whether an answer takes long: see Resource::slow; changes wait for each other.
    [[nodiscard]] static bool isSlow(const Request &request);

    // Asks what runs to end.
    void cancelJobs() { jobs_.cancelAll(); }

    // Throws nothing: what goes wrong is an answer too.
    Response answer(const Request &request);

  private:
    Response answerCall(const Request &request, const Target &target);
    Response answerFile(const Request &request, const Target &target);
    Response answerRead(const Call &call);
    Response answerChange(const Call &call, const Request &request);
    Response answerPatch(const Call &call, const Request &request);
    Response answerJob(const Call &call);
    [[nodiscard]] Response index() const;

    const Gate &gate_;
    Jobs jobs_;
    std::mutex changes_; // which read, compare and write, one at a time
};

} // namespace web
