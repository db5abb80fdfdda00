// SPDX-License-Identifier: MIT
// HTTP: connections and bytes on one side, requests and answers on the other.
#pragma once

#include "api.h"
#include "connections.h"
#include "gate.h"
#include "quick_pages.h"
#include "workers.h"

#include <chrono>
#include <optional>
#include <vector>

struct MHD_Daemon;

namespace web {

class Server {
  public:
    // Serves on a listening socket, of which it takes charge, until the object ends. Throws std::runtime_error.
    Server(int listener, Limits limits, const Gate &gate, Api &api);
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;
    ~Server();

    // Takes no connection any more, and waits for the answers to requests that have come, at most until then.
    void drain(std::chrono::steady_clock::time_point deadline);

  private:
    friend struct Callbacks; // of the HTTP library

    const Gate &gate_;
    Api &api_;
    const std::vector<Header> commonHeaders_;
    Connections connections_;
    QuickPages quickPages_;
    std::optional<Workers> workers_;
    MHD_Daemon *daemon_;
};

} // namespace web
