// SPDX-License-Identifier: MIT
// What a request must fulfil before anything of it is done, judged by its headers alone.
#pragma once

#include "call.h"
#include "origin.h"
#include "request.h"
#include "session.h"

namespace web {

class Gate {
  public:
    Gate(OwnHosts hosts, Session &session, bool readOnly);

    // Throws Refusal. Safe for many threads.
    void check(const Request &request) const;

    [[nodiscard]] bool readOnly() const { return readOnly_; }

  private:
    void checkChange(const Request &request, const Call &call) const;

    OwnHosts hosts_;
    Session &session_;
    bool readOnly_;
};

} // namespace web
