// SPDX-License-Identifier: MIT
// A line of the log for each change that was asked for: when, from which address, what, and how it ended.
#pragma once

#include "call.h"
#include "request.h"
#include "status.h"

#include <mutex>
#include <string>
#include <vector>

namespace web {

// What a change is about is the resource and the names of the parameters, never a value, which may be a secret. Safe
// for many threads.
class ChangeLog {
  public:
    // A change has come, and waits for its turn; to say so again does nothing. The request stays where it is until
    // end().
    void expect(const Call &call, const Request &request);
    // What its body sets.
    void about(const Request &request, const pages::Value &body);
    // The gateway is asked from now on. Throws Refusal (503) when the log was closed.
    void tries(const Request &request);
    // It ends, with its line.
    void end(const Request &request, Status status);

    // Writes the line of each change that is under way: nobody knows how one ends that is tried, and no other is tried
    // any more. Whether there was one.
    bool close();

  private:
    struct Change {
        const Request *request;
        std::string text;
        bool isTried = false, isTold = false;
    };
    std::vector<Change>::iterator find(const Request &request); // with the mutex held

    std::mutex mutex_;
    std::vector<Change> underWay_;
    bool closed_ = false;
};

} // namespace web
