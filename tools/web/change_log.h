// SPDX-License-Identifier: MIT
// A line of the log for each change that was asked for: when, from which address, what, and how it ended.
#pragma once

#include "call.h"
#include "request.h"
#include "status.h"

#include <list>
#include <mutex>
#include <string>

namespace web {

// What a change is about is the resource and the names of the parameters, never a value, which may be a secret. Safe
// for many threads.
class ChangeLog {
  public:
    struct Change {
        std::string address, text;
    };
    using Handle = std::list<Change>::iterator;

    // A change begins. Throws Refusal (503) when the log was closed.
    Handle begin(const Call &call, const Request &request);
    // And ends, with its line.
    void end(Handle change, Status status);

    // Writes a line for each change that is under way, and none after these. Whether there was one.
    bool close();

  private:
    std::mutex mutex_;
    std::list<Change> underWay_;
    bool closed_ = false;
};

} // namespace web
