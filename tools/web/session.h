// SPDX-License-Identifier: MIT
// Who may ask: a browser with the cookie of this start of the server, or a program with its token.
#pragma once

#include "request.h"
#include "wrong_tries.h"

#include <string>

namespace web {

// Safe for many threads.
class Session {
  public:
    // Cookies know no ports, so that the cookie's name keeps two servers on one address apart. Throws
    // std::system_error.
    explicit Session(int port);

    [[nodiscard]] const std::string &token() const { return token_; }

    // Throws Refusal: 401, or 503 while the address has to wait.
    void check(const Request &request);

    // What the token of "/?token=..." buys: the Set-Cookie header's value. Throws Refusal like check().
    std::string open(const std::string &token, const Request &request);

  private:
    void checkToken(const std::string &token, const Request &request);

    std::string token_;
    std::string cookie_;
    std::string cookieName_;
    WrongTries tries_;
};

} // namespace web
