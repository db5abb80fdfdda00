// SPDX-License-Identifier: MIT
// Answers requests that have passed the gate.
#pragma once

#include "call.h"
#include "change_log.h"
#include "gate.h"
#include "jobs.h"
#include "response.h"

#include <cstdint>
#include <functional>
#include <mutex>

namespace web {

// Safe for many threads.
class Api {
  public:
    explicit Api(const Gate &gate) : gate_(gate) {}

    // What an answer needs: the server alone; a page of the gateway; or what may take long even with a quick gateway: a
    // change, the device's tools.
    enum class Needs : uint8_t { Nothing, Page, Long };
    [[nodiscard]] static Needs needsOf(const Request &request);

    // Asks what runs to end.
    void cancelJobs() { jobs_.cancelAll(); }

    // Begins no change any more. Whether some were under way; the log says of these that nobody knows how they ended.
    bool abandonChanges() { return log_.close(); }

    // A request has come that waits for its turn: the log knows of it, if it is a change.
    void expect(const Request &request);

    // Throws nothing: what goes wrong is an answer too.
    Response answer(const Request &request);

  private:
    Response answerCall(const Request &request, const Target &target);
    Response answerFile(const Request &request, const Target &target);
    Response answerRead(const Call &call);
    // `begins` is called, and may refuse, when it is this change's turn.
    Response answerChange(const Call &call, const Request &request, const std::function<void()> &begins);
    Response answerPatch(const Call &call, const Request &request, const std::function<void()> &begins);
    [[nodiscard]] Response index() const;

    const Gate &gate_;
    Jobs jobs_;
    ChangeLog log_;
    std::mutex changes_; // which read, compare and write, one at a time
};

} // namespace web
