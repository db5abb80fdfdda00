// SPDX-License-Identifier: MIT
#include "api.h"
#include "gate.h"
#include "options.h"
#include "pages/failure.h"
#include "pages/layer/request_log.h"
#include "pages/network/pages.h"
#include "pages/process/console.h"
#include "pages/process/streams.h"
#include "server.h"
#include "token.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <sys/time.h>
#include <unistd.h>

namespace {

using namespace web;

constexpr std::chrono::milliseconds kEndTime{800}; // to finish what has begun
constexpr suseconds_t kEndMicroseconds = 950'000;  // after which the process ends, whatever still waits
constexpr int kFailed = 1;

constexpr int kEndSignals[] = {SIGTERM, SIGINT, SIGHUP};

// They are waited for: every thread has them blocked, and the tools that the library starts have them back.
sigset_t blockSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : kEndSignals) {
        sigaddset(&set, signal);
    }
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    return set;
}

// On a device, and in the sandbox's box, the library's trace goes to the console. It does not belong on a laptop's.
void keepConsole() {
    const char *box = getenv("CALTOFAL_BOX");
    if (pages::isSandbox() && !box) {
        pages::redirectConsole(open("/dev/null", O_WRONLY | O_CLOEXEC));
    }
}

// What the threads allocate, all of them get from one heap: memory is dearer on a gateway than the time that a few
// threads wait for each other.
void useOneHeap() {
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 1);
#endif
}

// A wrong name is told at the start, where it is seen. The server starts all the same: the gateway may come later. On a
// device nothing is asked, where the layer may be slow to start.
void checkGateway() {
    if (!pages::isSandbox()) {
        return;
    }
    try {
        pages::gateway();
    } catch (const pages::Failure &failure) {
        if (failure.category() == pages::Category::NoLayer) {
            std::cerr << "caltofal-web: " << failure.what() << "; until there is, every page is an error\n";
        }
    }
}

void endSoon() {
    struct sigaction action {};
    action.sa_handler = [](int) { _exit(0); };
    sigaction(SIGALRM, &action, nullptr);
    const itimerval timer = {{0, 0}, {0, kEndMicroseconds}};
    setitimer(ITIMER_REAL, &timer, nullptr);
}

// One line, flushed: a program that reads it sees it at once.
void printUrl(const Options &options, const Listener &listener, const std::string &token) {
    const std::string host =
        options.listen.any ? options.hosts.front() + ":" + std::to_string(listener.port) : listener.text();
    std::cout << "http://" << host << "/?token=" << token << std::endl; // NOLINT(performance-avoid-endl)
}

void serve(const Options &options, const sigset_t &endSignals) {
    const Listener listener = listenOn(options.listen);
    Session session(listener.port);
    RefusalLog refusals;
    const Gate gate(OwnHosts(listener.text(), options.hosts), session, refusals, options.readOnly);
    Api api(gate);
    Server server(listener.descriptor, {options.connections, options.connectionsPerAddress}, gate, api);
    if (!options.tokenFile.empty()) {
        writeSecret(options.tokenFile, session.token());
    }
    if (!options.listen.loopback) {
        std::cerr << "caltofal-web: listening on " << listener.text()
                  << " without encryption: put TLS in front of it\n";
    }
    checkGateway();
    printUrl(options, listener, session.token());
    int signal = 0;
    sigwait(&endSignals, &signal);
    endSoon();
    api.cancelJobs();
    server.drain(std::chrono::steady_clock::now() + kEndTime);
    if (api.abandonChanges()) {
        _exit(0); // they end with the program, as the log has said
    }
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
    useOneHeap();
    const sigset_t endSignals = blockSignals();
    keepConsole();
    const pages::StreamCapture library; // what it prints is for programs that end
    try {
        serve(options, endSignals);
    } catch (const std::exception &error) {
        std::cerr << "caltofal-web: " << error.what() << '\n';
        return kFailed;
    }
    return 0;
}
