// SPDX-License-Identifier: MIT
#include "caltofal/signals.h"

#include "caltofal/exit.h"
#include "caltofal/terminal.h"
#include "pages/json.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace cli {
namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

volatile sig_atomic_t deferred = 0;
volatile sig_atomic_t came = 0;
int words = STDERR_FILENO;        // standard error may lead elsewhere for a while
char lines[kSignals.size()][128]; // no object, whose end a signal could come after

void handle(int signal) {
    // A key reaches the process and its box, which passes it on: the second is the same one, and is being reported.
    const bool again = came != 0;
    came = signal;
    if (deferred != 0 || again) {
        return;
    }
    for (size_t i = 0; i < kSignals.size(); ++i) {
        if (kSignals[i] == signal) {
            writeAll(words, lines[i]);
        }
    }
    _exit(kExitSignal + signal);
}

sigset_t watched() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : kSignals) {
        sigaddset(&set, signal);
    }
    return set;
}

bool isIgnored(int signal) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

} // namespace

void watchSignals(bool json) {
    const int copy = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 3);
    words = copy < 0 ? STDERR_FILENO : copy;
    struct sigaction action {};
    action.sa_handler = handle; // without SA_RESTART: sleeping ends
    action.sa_mask = watched();
    for (size_t i = 0; i < kSignals.size(); ++i) {
        const Interrupted failure(kSignals[i], "interrupted");
        snprintf(lines[i], sizeof(lines[i]), "%s\n",
                 json ? pages::toJson(errorValue(failure)).c_str() : "caltofal: interrupted");
        if (!isIgnored(kSignals[i])) {
            sigaction(kSignals[i], &action, nullptr);
        }
    }
    holdSignals(false);
}

bool deferSignals(bool defer) {
    const bool before = deferred != 0;
    deferred = defer ? 1 : 0;
    return before;
}

int notedSignal() {
    return came;
}

// A signal between the look and the sleep waits for the sleep, and ends it.
void sleepUntilSignal(std::chrono::nanoseconds time) {
    constexpr std::chrono::seconds kSecond{1};
    const sigset_t set = watched();
    sigset_t before;
    sigprocmask(SIG_BLOCK, &set, &before);
    if (came == 0) {
        const timespec span = {static_cast<time_t>(time / kSecond), static_cast<long>((time % kSecond).count())};
        ppoll(nullptr, 0, &span, &before);
    }
    sigprocmask(SIG_SETMASK, &before, nullptr);
}

void holdSignals(bool hold) {
    const sigset_t set = watched();
    sigprocmask(hold ? SIG_BLOCK : SIG_UNBLOCK, &set, nullptr);
}

} // namespace cli
