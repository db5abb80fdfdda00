// SPDX-License-Identifier: MIT
// Where the server listens.
#pragma once

#include <string>
#include <sys/socket.h>

namespace web {

struct ListenAddress {
    sockaddr_storage address{};
    socklen_t size = 0;
    bool loopback = false;
    bool any = false; // all addresses of the machine
};

// "127.0.0.1:8080", "[::1]:0", "localhost:8080". Throws std::invalid_argument with what is wrong.
ListenAddress parseListenAddress(const std::string &text);

// A socket that listens, and where: with the port that port 0 became. Throws std::system_error.
struct Listener {
    int descriptor = -1;
    std::string host; // "127.0.0.1", "[::1]"
    int port = 0;

    [[nodiscard]] std::string text() const { return host + ":" + std::to_string(port); }
};
Listener listenOn(const ListenAddress &address);

// The numeric form of an address, without the port.
std::string addressText(const sockaddr *address);

} // namespace web
