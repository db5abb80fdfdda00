// SPDX-License-Identifier: MIT
#include "api.h"
#include "gate.h"
#include "options.h"
#include "server.h"
#include "token.h"

#include "pages/layer/request_log.h"
#include "pages/process/console.h"
#include "pages/process/streams.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <sys/eventfd.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

using namespace web;

constexpr std::chrono::milliseconds kEndTime{800}; // to finish what has begun
constexpr suseconds_t kEndMicroseconds = 950'000;  // after which the process ends, whatever still waits
constexpr int kFailed = 1;

int endEvent = -1;

// Not by blocked signals: what the library starts would inherit them.
void watchSignals() {
    endEvent = eventfd(0, EFD_CLOEXEC);
    struct sigaction action {};
    action.sa_handler = [](int) {
        const int error = errno;
        const uint64_t one = 1;
        static_cast<void>(!write(endEvent, &one, sizeof one));
        errno = error;
    };
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(signal, &action, nullptr);
    }
}

// On a device, and in the sandbox's box, the console has the library's trace. A laptop's console is none of its
// business.
void keepConsole() {
    const char *box = getenv("CALTOFAL_BOX");
    if (pages::isSandbox() && !box) {
        pages::redirectConsole(open("/dev/null", O_WRONLY | O_CLOEXEC));
    }
}

void waitForEnd() {
    uint64_t count = 0;
    while (read(endEvent, &count, sizeof count) < 0 && errno == EINTR) {
    }
}

void endSoon() {
    struct sigaction action {};
    action.sa_handler = [](int) { _exit(0); };
    sigaction(SIGALRM, &action, nullptr);
    const itimerval timer = {{0, 0}, {0, kEndMicroseconds}};
    setitimer(ITIMER_REAL, &timer, nullptr);
}

// One line, whatever reads it sees it at once.
void printUrl(const Options &options, const Listener &listener, const std::string &token) {
    const std::string host =
        options.listen.any ? options.hosts.front() + ":" + std::to_string(listener.port) : listener.text();
    std::cout << "http://" << host << "/?token=" << token << std::endl; // NOLINT(performance-avoid-endl)
}

void serve(const Options &options) {
    const Listener listener = listenOn(options.listen);
    Session session(listener.port);
    const Gate gate(OwnHosts(listener.text(), options.hosts), session, options.readOnly);
    Api api(session, gate);
    Server server(listener.descriptor, {options.connections, options.connectionsPerAddress}, gate, api);
    if (!options.tokenFile.empty()) {
        writeSecret(options.tokenFile, session.token());
    }
    if (!options.listen.loopback) {
        std::cerr << "caltofal-web: listening on " << listener.text()
                  << " without encryption: put TLS in front of it\n";
    }
    printUrl(options, listener, session.token());
    waitForEnd();
    endSoon();
    api.cancelJobs();
    server.drain(std::chrono::steady_clock::now() + kEndTime);
}

} // namespace

int main(int argc, char **argv) {
    Options options;
    if (const std::optional<int> code = parseOptions(argc, argv, options)) {
        return *code;
    }
    if (!options.gateway.empty()) {
        setenv("CALTOFAL_GATEWAY", options.gateway.c_str(), 1);
    }
    watchSignals();
    keepConsole();
    const pages::StreamCapture library; // what it prints is for programs that end
    try {
        serve(options);
    } catch (const std::exception &error) {
        std::cerr << "caltofal-web: " << error.what() << '\n';
        return kFailed;
    }
    return 0;
}
