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
        bool isTried = false, isTold = false;
    };
    using Handle = std::list<Change>::iterator;

    // A change has come; its body is not read yet.
    Handle begin(const Request &request);
    // What its body sets.
    void about(Handle change, const pages::Value &body);
    // The gateway is asked from now on. Throws Refusal (503) when the log was closed.
    void tries(Handle change);
    // It ends, with its line.
    void end(Handle change, Status status);

    // Writes the line of each change that is under way: nobody knows how one ends that is tried, and no other is tried
    // any more. Whether there was one.
    bool close();

  private:
    std::mutex mutex_;
    std::list<Change> underWay_;
    bool closed_ = false;
};

} // namespace web
