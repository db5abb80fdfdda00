// SPDX-License-Identifier: MIT
// What a request must fulfil before anything of it is done, judged by its headers alone.
#pragma once

#include "call.h"
#include "origin.h"
#include "refusal_log.h"
#include "request.h"
#include "session.h"

namespace web {

class Gate {
  public:
    Gate(OwnHosts hosts, Session &session, RefusalLog &log, bool readOnly);

    // Throws Refusal. Safe for many threads, as is the next.
    void check(const Request &request) const;

    // Session::open(), for a request that was checked.
    [[nodiscard]] std::string open(const std::string &token, const Request &request) const;

    [[nodiscard]] bool readOnly() const { return readOnly_; }

  private:
    void judge(const Request &request) const;
    void checkChange(const Request &request, const Call &call) const;

    OwnHosts hosts_;
    Session &session_;
    RefusalLog &log_;
    bool readOnly_;
};

} // namespace web
