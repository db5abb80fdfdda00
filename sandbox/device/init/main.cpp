// SPDX-License-Identifier: MIT
//
// caltofal-box-init: process 1 of the device box. It finishes what bubblewrap began, starts the device's daemons, runs
// the command and ends with it.
//
//     caltofal-box-init ERRORS READY SIGNALS COMMAND [ARGUMENT...]
//
// ERRORS is the descriptor of the command's standard error (bubblewrap's own is kept apart), READY the one that gets a
// byte once the command runs and stays open as long as the box, SIGNALS the one from which it reads, a byte each, the
// signals for the command; its end says that nobody waits for the box any more. The terminal's own signals reach the
// command directly, for it is in the caller's process group; the daemons are not.
#include "device/init/console.h"
#include "device/init/links.h"
#include "device/init/system_log.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fcntl.h>
#include <iterator>
#include <optional>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

namespace box {
namespace {

constexpr const char *kStartScript = "/opt/lantiq/sbin/rc";
constexpr int kTickMs = 1000;
constexpr std::chrono::seconds kGrace(5); // for a command that was told to end

constexpr int kHandedOn[] = {SIGINT, SIGQUIT, SIGTERM, SIGHUP};

constexpr int kExitFailed = 1;
constexpr int kExitNotExecutable = 126;
constexpr int kExitNotFound = 127;
constexpr int kExitSignal = 128;

struct Invocation {
    int errors, ready, signals;
    char **command;
};

// What the box's programs write to one place each.
struct Logs {
    Console console;
    SystemLog messages;

    void drain() const {
        console.drain();
        messages.drain();
    }
};

sigset_t handledSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : {SIGCHLD, SIGTERM}) {
        sigaddset(&set, signal);
    }
    return set;
}

[[noreturn]] void become(char **command) {
    execvp(command[0], command);
    const int error = errno;
    std::fprintf(stderr, "caltofal-sandbox: %s: %s\n", command[0], std::strerror(error));
    _exit(error == ENOENT ? kExitNotFound : kExitNotExecutable);
}

// The caller blocks what it hands on: `held` leaves just that blocked.
void unblock(bool held) {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : kHandedOn) {
        if (held) {
            sigaddset(&set, signal);
        }
    }
    sigprocmask(SIG_SETMASK, &set, nullptr);
}

int exitCodeOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : kExitSignal + WTERMSIG(status);
}

// What the process group was sent before the daemons left it.
void dropPending() {
    for (const int signal : kHandedOn) {
        std::signal(signal, SIG_IGN);
        std::signal(signal, SIG_DFL);
    }
}

// Runs the start script to its end, its output on the console; where it fails, on standard error too. A session of
// their own keeps keys from the daemons.
bool startDaemons(const Console &console) {
    const pid_t script = fork();
    if (script == 0) {
        setsid();
        dropPending();
        unblock(false);
        [[maybe_unused]] const bool redirected = std::freopen("/dev/null", "r", stdin) != nullptr &&
                                                 std::freopen("/dev/console", "r+", stdout) != nullptr &&
                                                 dup2(STDOUT_FILENO, STDERR_FILENO) >= 0;
        char *const command[] = {const_cast<char *>(kStartScript), nullptr};
        become(const_cast<char **>(command));
    }
    int status = 0;
    while (waitpid(script, &status, 0) < 0 && errno == EINTR) {
    }
    if (script < 0 || status != 0) {
        std::fputs(console.drain().c_str(), stderr);
        std::fprintf(stderr, "caltofal-sandbox: the device's start script failed (%d)\n", exitCodeOf(status));
        return false;
    }
    return true;
}

// A command that says so gets its signals blocked, and loses none before it can handle them.
pid_t startCommand(const Invocation &invocation) {
    const pid_t child = fork();
    if (child == 0) {
        unblock(std::getenv("CALTOFAL_BOX_HOLD_SIGNALS") != nullptr);
        unsetenv("CALTOFAL_BOX_HOLD_SIGNALS");
        become(invocation.command);
    }
    return child;
}

// Reaps what has ended. True when the command has; its status is in `status`.
bool reap(pid_t command, int &status) {
    bool ended = false;
    int one = 0;
    for (pid_t child = 0; (child = waitpid(-1, &one, WNOHANG)) > 0;) {
        if (child == command) {
            status = one;
            ended = true;
        }
    }
    return ended;
}

// What the command is to be told after a poll, 0 for nothing.
int signalFor(const pollfd &own, const pollfd &requests) {
    signalfd_siginfo info{};
    if ((own.revents & POLLIN) != 0 && read(own.fd, &info, sizeof(info)) == sizeof(info) && info.ssi_signo != SIGCHLD) {
        return static_cast<int>(info.ssi_signo);
    }
    unsigned char byte = 0;
    if (requests.revents == 0) {
        return 0;
    }
    return read(requests.fd, &byte, 1) == 1 ? byte : SIGTERM;
}

// Looks after the box until the command has ended. Its exit code.
int attend(pid_t command, int own, int requests, const Logs &logs, ProcessLinks &links) {
    using Clock = std::chrono::steady_clock;
    std::optional<Clock::time_point> deadline;
    int status = 0;
    while (!reap(command, status)) {
        if (deadline && Clock::now() > *deadline) {
            return kExitSignal + SIGKILL;
        }
        pollfd watched[] = {
            {own, POLLIN, 0},
            {deadline ? -1 : requests, POLLIN, 0},
            {logs.console.descriptor(), POLLIN, 0},
            {logs.messages.descriptor(), POLLIN, 0},
        };
        poll(watched, std::size(watched), kTickMs);
        if (const int signal = signalFor(watched[0], watched[1]); signal != 0) {
            kill(command, signal);
            if (signal == SIGTERM || signal == SIGHUP) {
                deadline = deadline.value_or(Clock::now() + kGrace);
            }
        }
        logs.drain();
        links.extend();
    }
    logs.drain();
    return exitCodeOf(status);
}

int run(const Invocation &invocation) {
    const sigset_t handled = handledSignals();
    sigprocmask(SIG_BLOCK, &handled, nullptr);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    dup2(invocation.errors, STDERR_FILENO);
    close(invocation.errors);
    fcntl(invocation.ready, F_SETFD, FD_CLOEXEC);
    fcntl(invocation.signals, F_SETFD, FD_CLOEXEC);

    const Logs logs;
    ProcessLinks links;
    linkPrograms();
    linkProc();
    links.extend();
    if (!startDaemons(logs.console)) {
        [[maybe_unused]] const ssize_t written = write(invocation.ready, "", 1); // the box itself is there
        return kExitFailed;
    }
    const int own = signalfd(-1, &handled, SFD_CLOEXEC);
    const pid_t command = own < 0 ? -1 : startCommand(invocation);
    if (command < 0 || write(invocation.ready, "", 1) != 1) {
        return kExitFailed;
    }
    return attend(command, own, invocation.signals, logs, links);
}

} // namespace
} // namespace box

int main(int argc, char **argv) {
    constexpr int kFixedArguments = 3;
    if (argc < 2 + kFixedArguments) {
        std::fprintf(stderr, "caltofal-box-init: for caltofal-sandbox run only\n");
        return 2;
    }
    try {
        return box::run({std::atoi(argv[1]), std::atoi(argv[2]), std::atoi(argv[3]), argv + 1 + kFixedArguments});
    } catch (const std::exception &error) {
        std::fprintf(stderr, "caltofal-sandbox: %s\n", error.what());
        return box::kExitFailed;
    }
}
