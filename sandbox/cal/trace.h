// SPDX-License-Identifier: MIT
//
// The trace of messages: with CALTOFAL_SANDBOX_TRACE=FILE, or "-" for standard error, each message of any process is
// one line (docs/sandbox.md, "Trace").
#pragma once

#include "caltofal.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace sandbox {

// One message on its way. Costs a look at the environment where no trace is wanted.
class Trace {
  public:
    // Notes what is asked: a get loses it to its answer. `message` may be NULL or malformed. Never throws.
    Trace(const char *operation, const MsgHeader *message) noexcept;

    // Whether the gateway has a parameter.
    using Knows = std::function<bool(const std::string &object, const std::string &parameter)>;

    // Writes the line; `reason` is why a message was refused, or what else there is to say, "" for nothing. Values of a
    // refused message are shown where `knows` says that there is such a parameter: a misspelt one may be a secret. A
    // trace that cannot be written is told once on standard error.
    void end(const std::string &gateway, int code, const char *reason, const Knows &knows) const noexcept;

  private:
    struct Parameter {
        std::string name;
        std::string value; // quoted; "" without one
    };
    struct Object {
        std::string verb; // "add ", "delete "
        std::string path;
        std::vector<Parameter> parameters;
    };

    static std::vector<Object> objectsOf(const MsgHeader *message);
    static std::string textOf(const std::vector<Object> &objects, const Knows &isShown);

    std::string file_; // "" no trace is wanted
    std::string operation_, ownerRemark_;
    std::vector<Object> request_;
    std::chrono::steady_clock::time_point begin_;
};

} // namespace sandbox
