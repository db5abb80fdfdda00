// SPDX-License-Identifier: MIT
#include "listener.h"

#include <arpa/inet.h>
#include <cerrno>
#include <charconv>
#include <netinet/in.h>
#include <stdexcept>
#include <system_error>
#include <unistd.h>

namespace web {
namespace {

constexpr int kBacklog = 256;

uint16_t portOf(const std::string &text) {
    uint16_t port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw std::invalid_argument("\"" + text + "\" is not a port: give 0 to 65535");
    }
    return port;
}

template <class Address>
ListenAddress asListenAddress(const Address &address, bool loopback, bool any) {
    ListenAddress result;
    static_assert(sizeof(address) <= sizeof(result.address));
    __builtin_memcpy(&result.address, &address, sizeof(address));
    result.size = sizeof(address);
    result.loopback = loopback;
    result.any = any;
    return result;
}

int numericPort(const sockaddr_storage &address) {
    return ntohs(address.ss_family == AF_INET6 ? reinterpret_cast<const sockaddr_in6 &>(address).sin6_port
                                               : reinterpret_cast<const sockaddr_in &>(address).sin_port);
}

} // namespace

ListenAddress parseListenAddress(const std::string &text) {
    const size_t colon = text.rfind(':');
    if (colon == std::string::npos) {
        throw std::invalid_argument("\"" + text + "\" is not ADDRESS:PORT");
    }
    const uint16_t port = portOf(text.substr(colon + 1));
    const std::string host = text.substr(0, colon);
    sockaddr_in v4{};
    v4.sin_family = AF_INET;
    v4.sin_port = htons(port);
    if (inet_pton(AF_INET, host == "localhost" ? "127.0.0.1" : host.c_str(), &v4.sin_addr) == 1) {
        const uint32_t number = ntohl(v4.sin_addr.s_addr);
        return asListenAddress(v4, number >> 24 == 127, number == 0);
    }
    sockaddr_in6 v6{};
    v6.sin6_family = AF_INET6;
    v6.sin6_port = htons(port);
    if (host.size() > 2 && host.front() == '[' && host.back() == ']' &&
        inet_pton(AF_INET6, host.substr(1, host.size() - 2).c_str(), &v6.sin6_addr) == 1) {
        return asListenAddress(v6, IN6_IS_ADDR_LOOPBACK(&v6.sin6_addr), IN6_IS_ADDR_UNSPECIFIED(&v6.sin6_addr));
    }
    throw std::invalid_argument("\"" + host + "\" is not an IP address; IPv6 ones stand in brackets");
}

Listener listenOn(const ListenAddress &address) {
    const auto *target = reinterpret_cast<const sockaddr *>(&address.address);
    const int one = 1;
    const int descriptor = socket(target->sa_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_storage bound{};
    socklen_t size = sizeof(bound);
    if (descriptor < 0 || setsockopt(descriptor, SOL_SOCKET, SO_REUSEADDR, &one, sizeof(one)) != 0 ||
        bind(descriptor, target, address.size) != 0 || listen(descriptor, kBacklog) != 0 ||
        getsockname(descriptor, reinterpret_cast<sockaddr *>(&bound), &size) != 0) {
        const int error = errno;
        close(descriptor);
        throw std::system_error(error, std::generic_category(),
                                "cannot listen on " + addressText(target) + ":" +
                                    std::to_string(numericPort(address.address)));
    }
    return {descriptor, addressText(target), numericPort(bound)};
}

std::string addressText(const sockaddr *address) {
    char text[INET6_ADDRSTRLEN] = "";
    if (address->sa_family == AF_INET6) {
        inet_ntop(AF_INET6, &reinterpret_cast<const sockaddr_in6 *>(address)->sin6_addr, text, sizeof(text));
        return "[" + std::string(text) + "]";
    }
    inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in *>(address)->sin_addr, text, sizeof(text));
    return text;
}

} // namespace web
