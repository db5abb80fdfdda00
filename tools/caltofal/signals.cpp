// SPDX-License-Identifier: MIT
//
// The library runs the device's tools by system(), which has the process ignore the keyboard's signals meanwhile. Its
// calls bind to the function below, which loses none.
#include "caltofal/signals.h"

#include "caltofal/print.h"
#include "caltofal/terminal.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace cli {
namespace {

constexpr std::array kSignals = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};
constexpr int kNotExecutable = 127;

volatile sig_atomic_t deferred = 0;
volatile sig_atomic_t came = 0;
int words = STDERR_FILENO; // standard error may lead elsewhere for a while
std::array<std::string, kSignals.size()> lines;

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

void letSignalsKill() {
    for (const int signal : kSignals) {
        if (!isIgnored(signal)) {
            std::signal(signal, SIG_DFL);
        }
    }
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
        lines[i] = json ? dumped(errorJson(failure)) + "\n" : "caltofal: interrupted\n";
        if (!isIgnored(kSignals[i])) {
            sigaction(kSignals[i], &action, nullptr);
        }
    }
    holdSignals(false);
}

void deferSignals(bool defer) {
    deferred = defer ? 1 : 0;
}

int notedSignal() {
    return came;
}

void holdSignals(bool hold) {
    const sigset_t set = watched();
    sigprocmask(hold ? SIG_BLOCK : SIG_UNBLOCK, &set, nullptr);
}

} // namespace cli

extern "C" __attribute__((visibility("default"))) int system(const char *command) {
    if (!command) {
        return 1;
    }
    // The child must not handle a signal in the tool's name.
    const sigset_t set = cli::watched();
    sigset_t before;
    pthread_sigmask(SIG_BLOCK, &set, &before);
    const pid_t child = fork();
    if (child == 0) {
        cli::letSignalsKill();
        pthread_sigmask(SIG_SETMASK, &before, nullptr);
        execl("/bin/sh", "sh", "-c", command, nullptr);
        _exit(cli::kNotExecutable);
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    int status = -1;
    while (child > 0 && waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}
