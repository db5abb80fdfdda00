// SPDX-License-Identifier: MIT
//
// caltofal-box-init: process 1 of the device box. It finishes what bubblewrap began, starts the device's daemons, runs
// the command and ends with it.
//
//     caltofal-box-init ERRORS READY IGNORED COMMAND [ARGUMENT...]
//
// ERRORS is the descriptor of the command's standard error (bubblewrap's own is kept apart), READY the one that gets a
// byte once the command is about to run and stays open as long as the box, IGNORED the signals to ignore: 1 SIGINT,
// 2 SIGQUIT, 3 both, 0 none.
#include "console.h"
#include "links.h"
#include "system_log.h"

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

constexpr int kExitFailed = 1;
constexpr int kExitNotExecutable = 126;
constexpr int kExitNotFound = 127;
constexpr int kExitSignal = 128;

struct Invocation {
    int errors, ready, ignored;
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
    for (const int signal : {SIGCHLD, SIGTERM, SIGHUP}) {
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

int exitCodeOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : kExitSignal + WTERMSIG(status);
}

// Runs the start script to its end, its output on the console.
void startDaemons(const sigset_t &mask) {
    const pid_t script = fork();
    if (script == 0) {
        sigprocmask(SIG_SETMASK, &mask, nullptr);
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
        std::fprintf(stderr, "caltofal-sandbox: the device's start script failed (%d)\n", exitCodeOf(status));
    }
}

// The caller ignores the keyboard's signals, so that it outlives a command that handles them.
void restoreKeyboardSignals(int ignored) {
    std::signal(SIGINT, (ignored & 1) != 0 ? SIG_IGN : SIG_DFL);
    std::signal(SIGQUIT, (ignored & 2) != 0 ? SIG_IGN : SIG_DFL);
}

pid_t startCommand(const Invocation &invocation, const sigset_t &mask) {
    const pid_t child = fork();
    if (child == 0) {
        restoreKeyboardSignals(invocation.ignored);
        sigprocmask(SIG_SETMASK, &mask, nullptr);
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

// Looks after the box until the command has ended. Its exit code.
int attend(pid_t command, int signals, const Logs &logs, ProcessLinks &links) {
    using Clock = std::chrono::steady_clock;
    std::optional<Clock::time_point> deadline;
    int status = 0;
    while (!reap(command, status)) {
        if (deadline && Clock::now() > *deadline) {
            return kExitSignal + SIGKILL;
        }
        pollfd watched[] = {
            {signals, POLLIN, 0}, {logs.console.descriptor(), POLLIN, 0}, {logs.messages.descriptor(), POLLIN, 0}};
        poll(watched, std::size(watched), kTickMs);
        signalfd_siginfo info{};
        if ((watched[0].revents & POLLIN) != 0 && read(signals, &info, sizeof(info)) == sizeof(info) &&
            info.ssi_signo != SIGCHLD) {
            kill(command, static_cast<int>(info.ssi_signo));
            deadline = deadline.value_or(Clock::now() + kGrace);
        }
        logs.drain();
        links.extend();
    }
    logs.drain();
    return exitCodeOf(status);
}

int run(const Invocation &invocation) {
    const sigset_t handled = handledSignals();
    sigset_t outerMask;
    sigprocmask(SIG_BLOCK, &handled, &outerMask);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    dup2(invocation.errors, STDERR_FILENO);
    close(invocation.errors);
    fcntl(invocation.ready, F_SETFD, FD_CLOEXEC);

    const Logs logs;
    ProcessLinks links;
    linkPrograms();
    linkProc();
    links.extend();
    startDaemons(outerMask);

    const int signals = signalfd(-1, &handled, SFD_CLOEXEC);
    if (signals < 0 || write(invocation.ready, "", 1) != 1) {
        return kExitFailed;
    }
    const pid_t command = startCommand(invocation, outerMask);
    return command < 0 ? kExitFailed : attend(command, signals, logs, links);
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
