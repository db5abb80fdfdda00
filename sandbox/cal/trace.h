// SPDX-License-Identifier: MIT
//
// The trace of messages: with CALTOFAL_SANDBOX_TRACE=FILE, or "-" for standard error, each message of any process is
// one line (docs/sandbox.md, "Trace").
#pragma once

#include "caltofal.h"

#include <chrono>
#include <string>

namespace sandbox {

// One message on its way. Costs a look at the environment where no trace is wanted.
class Trace {
  public:
    // Notes what is asked: a get loses it to its answer. `message` may be NULL or malformed. Never throws.
    Trace(const char *operation, const MsgHeader *message) noexcept;

    // Writes the line; `reason` is why a message was refused, or what else there is to say, "" for nothing. A trace
    // that cannot be written is told once on standard error.
    void end(const std::string &gateway, int code, const char *reason) const noexcept;

  private:
    std::string file_; // "" no trace is wanted
    std::string operation_, request_, ownerRemark_;
    std::chrono::steady_clock::time_point begin_;
};

} // namespace sandbox
