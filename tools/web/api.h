// SPDX-License-Identifier: MIT
// Answers requests that have passed the gate.
#pragma once

#include "gate.h"
#include "response.h"
#include "target.h"

namespace web {

// Safe for many threads.
class Api {
  public:
    Api(Session &session, const Gate &gate) : session_(session), gate_(gate) {}

    // Whether an answer takes long: see Resource::slow.
    [[nodiscard]] static bool isSlow(const Request &request);

    // Throws nothing: what goes wrong is an answer too.
    Response answer(const Request &request);

  private:
    Response answerCall(const Request &request, const Target &target);
    Response answerFile(const Request &request, const Target &target);
    [[nodiscard]] Response index() const;

    Session &session_;
    const Gate &gate_;
};

} // namespace web
