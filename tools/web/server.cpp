// SPDX-License-Identifier: MIT
#include "server.h"

#include "exchange.h"
#include "listener.h"
#include "target.h"

#include <cstdarg>
#include <cstdio>
#include <memory>
#include <microhttpd.h>
#include <stdexcept>

namespace web {
namespace {

constexpr unsigned kThreads = 4;
constexpr unsigned kSpareConnections = 32;  // to tell those beyond the limit so
constexpr size_t kConnectionMemory = 32768; // kHeadersMax, some 70 bytes for each item of it, and the answer's headers
constexpr unsigned kSilenceMax = 75;        // seconds; the connections' own deadlines come first

// What every answer carries.
std::vector<Header> commonHeaders(bool readOnly) {
    std::vector<Header> headers = {
        {"Content-Security-Policy", "default-src 'self'; frame-ancestors 'none'; base-uri 'none'; form-action 'self'"},
        {"X-Content-Type-Options", "nosniff"},
        {"Referrer-Policy", "no-referrer"},
        {"Cross-Origin-Resource-Policy", "same-origin"},
    };
    if (readOnly) { // a page need not offer changes
        headers.push_back({"Caltofal-Read-Only", "1"});
    }
    return headers;
}

MHD_Response *makeResponse(const Response &response, const std::vector<Header> &common) {
    const std::string_view content = response.file.empty() ? std::string_view(response.body) : response.file;
    const MHD_ResponseMemoryMode mode = response.file.empty() ? MHD_RESPMEM_MUST_COPY : MHD_RESPMEM_PERSISTENT;
    // The library only reads it.
    MHD_Response *made =
        MHD_create_response_from_buffer(content.size(), const_cast<char *>(content.data()), mode); // NOLINT
    if (!made) {
        throw std::bad_alloc();
    }
    const auto add = [&](const std::string &name, std::string_view value) {
        MHD_add_response_header(made, name.c_str(), std::string(value).c_str());
    };
    if (response.status != Status::NotModified && !content.empty()) {
        add(MHD_HTTP_HEADER_CONTENT_TYPE, response.type);
    }
    add(MHD_HTTP_HEADER_CACHE_CONTROL, response.caching);
    for (const std::vector<Header> *headers : {&common, &response.headers}) {
        for (const Header &header : *headers) {
            add(header.name, header.value);
        }
    }
    return made;
}

MHD_Result send(MHD_Connection *connection, const Response &response, const std::vector<Header> &common) {
    MHD_Response *made = makeResponse(response, common);
    const MHD_Result queued = MHD_queue_response(connection, static_cast<unsigned>(response.status), made);
    MHD_destroy_response(made);
    return queued;
}

// What the server keeps of a connection. The exchange is here, as the HTTP library does not tell of the end of each
// request that it has told the beginning of.
struct Client {
    Connections::Handle handle;
    std::unique_ptr<Exchange> exchange = nullptr;
};

Client &clientOf(MHD_Connection *connection) {
    const MHD_ConnectionInfo *info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_SOCKET_CONTEXT);
    return *static_cast<Client *>(info->socket_context);
}

} // namespace

struct Callbacks {
    static void connection(void *self, MHD_Connection *connection, void **context,
                           MHD_ConnectionNotificationCode code) {
        Server &server = *static_cast<Server *>(self);
        if (code == MHD_CONNECTION_NOTIFY_CLOSED) {
            const std::unique_ptr<Client> client(static_cast<Client *>(*context));
            server.connections_.closed(client->handle);
            return;
        }
        const int descriptor = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD)->connect_fd;
        const sockaddr *address = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS)->client_addr;
        *context = new Client{server.connections_.opened(descriptor, addressText(address))};
    }

    // The request line has come.
    static void *begin(void *self, const char *target, MHD_Connection *connection) {
        Client &client = clientOf(connection);
        client.exchange = std::make_unique<Exchange>();
        Exchange *exchange = client.exchange.get();
        exchange->connection = client.handle;
        exchange->target = target;
        exchange->request.target = target;
        exchange->request.address = exchange->connection->address;
        Connections &connections = static_cast<Server *>(self)->connections_;
        connections.become(exchange->connection, Connections::State::Receiving);
        try {
            checkQuerySize(exchange->request.target); // the HTTP library has no room for many and would not answer
        } catch (const Refusal &refusal) {
            connections.refuse(exchange->connection, refusal);
        }
        return exchange;
    }

    static void end(void *self, MHD_Connection *connection, void **context, MHD_RequestTerminationCode /*code*/) {
        Client &client = clientOf(connection);
        *context = nullptr;
        client.exchange.reset();
        static_cast<Server *>(self)->connections_.become(client.handle, Connections::State::Idle);
    }

    static MHD_Result handle(void *self, MHD_Connection *connection, const char * /*url*/, const char *method,
                             const char *version, const char *data, size_t *size, void **context) {
        Server &server = *static_cast<Server *>(self);
        Exchange &exchange = *static_cast<Exchange *>(*context);
        if (server.connections_.isRefused(exchange.connection)) {
            return MHD_NO;
        }
        if (!exchange.headersTaken) {
            exchange.headersTaken = true;
            takeHeaders(server, connection, exchange, method, version);
            if (server.connections_.isRefused(exchange.connection)) {
                return MHD_NO;
            }
            return exchange.response && exchange.skipsBody() ? finish(server, connection, exchange) : MHD_YES;
        }
        if (*size > 0) {
            exchange.takeBody({data, *size});
            *size = 0;
            return MHD_YES;
        }
        return exchange.response ? finish(server, connection, exchange) : work(server, connection, exchange);
    }

    static void takeHeaders(Server &server, MHD_Connection *connection, Exchange &exchange, const char *method,
                            const char *version) {
        try {
            exchange.takeHeaders(connection, method, version);
            server.gate_.check(exchange.request);
        } catch (const Refusal &refusal) {
            exchange.response = errorResponse(refusal);
            if (refusal.status() == Status::HeadersTooLarge) { // the HTTP library may have no room for an answer
                server.connections_.refuse(exchange.connection, refusal);
            }
        }
    }

    static MHD_Result finish(Server &server, MHD_Connection *connection, Exchange &exchange) {
        server.connections_.become(exchange.connection, Connections::State::Answering);
        return send(connection, *exchange.response, server.commonHeaders_);
    }

    static void answerPage(Server &server, Exchange &exchange, bool claimed) {
        const auto start = std::chrono::steady_clock::now();
        exchange.response = server.api_.answer(exchange.request);
        server.quickPages_.made(exchange.request.target, std::chrono::steady_clock::now() - start, claimed);
    }

    // The request is whole. After a wait the HTTP library comes back with the answer in place.
    static MHD_Result work(Server &server, MHD_Connection *connection, Exchange &exchange) {
        server.connections_.become(exchange.connection, Connections::State::Working);
        const Api::Needs needs = Api::needsOf(exchange.request);
        if (needs == Api::Needs::Nothing) {
            exchange.response = server.api_.answer(exchange.request);
            return finish(server, connection, exchange);
        }
        const bool isPage = needs == Api::Needs::Page;
        if (isPage && server.workers_->areIdle() && server.quickPages_.claim(exchange.request.target)) {
            answerPage(server, exchange, true);
            return finish(server, connection, exchange);
        }
        if (!isPage) {
            server.api_.expect(exchange.request);
        }
        MHD_suspend_connection(connection); // which has no other request: so many can wait as there are connections
        server.workers_->add([&server, connection, &exchange, isPage] {
            if (isPage) {
                answerPage(server, exchange, false);
            } else {
                exchange.response = server.api_.answer(exchange.request);
            }
            MHD_resume_connection(connection);
        });
        return MHD_YES;
    }

    static void log(void * /*self*/, const char *format, va_list arguments) __attribute__((format(printf, 2, 0))) {
        static_cast<void>(format);
        static_cast<void>(arguments); // what clients do wrong
    }
};

Server::Server(int listener, Limits limits, const Gate &gate, Api &api)
    : gate_(gate), api_(api), commonHeaders_(commonHeaders(gate.readOnly())), connections_(limits, commonHeaders_),
      workers_(std::in_place),
      daemon_(MHD_start_daemon(MHD_USE_EPOLL_INTERNAL_THREAD | MHD_ALLOW_SUSPEND_RESUME | MHD_USE_ERROR_LOG, 0, nullptr,
                               nullptr, &Callbacks::handle, this, MHD_OPTION_EXTERNAL_LOGGER, &Callbacks::log, this,
                               MHD_OPTION_LISTEN_SOCKET, listener, MHD_OPTION_THREAD_POOL_SIZE, kThreads,
                               MHD_OPTION_CONNECTION_LIMIT, limits.connections + kSpareConnections,
                               MHD_OPTION_CONNECTION_MEMORY_LIMIT, kConnectionMemory, MHD_OPTION_CONNECTION_TIMEOUT,
                               kSilenceMax, MHD_OPTION_NOTIFY_CONNECTION, &Callbacks::connection, this,
                               MHD_OPTION_URI_LOG_CALLBACK, &Callbacks::begin, this, MHD_OPTION_NOTIFY_COMPLETED,
                               &Callbacks::end, this, MHD_OPTION_END)) {
    if (!daemon_) {
        throw std::runtime_error("the HTTP server cannot be started");
    }
}

Server::~Server() {
    workers_.reset(); // the HTTP library waits for connections that are suspended
    MHD_stop_daemon(daemon_);
}

void Server::drain(std::chrono::steady_clock::time_point deadline) {
    MHD_quiesce_daemon(daemon_);
    connections_.drain(deadline);
}

} // namespace web
