// SPDX-License-Identifier: MIT
// Who a browser says that it speaks to, and whose page it speaks for: what stops DNS rebinding and foreign pages.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace web {

// The names under which the server answers.
class OwnHosts {
  public:
    // `listening` is "127.0.0.1:8080" or "[::1]:8080"; `names` are without a port and hold for any port, as what stands
    // in front of the server has its own.
    OwnHosts(std::string listening, std::vector<std::string> names);

    // Whether a Host header names this server.
    [[nodiscard]] bool isOwn(std::string_view host) const;

  private:
    std::string listening_;
    std::vector<std::string> names_;
};

// Whether a request that changes something comes from a page of this server: its Origin has the same host and port as
// the request's Host, and Sec-Fetch-Site says "same-origin"; one of the two must be there, none may say otherwise.
bool isFromOwnPage(std::string_view host, std::string_view origin, std::string_view fetchSite);

} // namespace web
