// SPDX-License-Identifier: MIT
#include "device/box/bwrap.h"

#include "device/box/obstacle.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <iterator>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace box {
namespace {

constexpr int kExitSignal = 128;
constexpr int kExitNoBwrap = 1;

constexpr int kSignals[] = {SIGINT, SIGQUIT, SIGTERM, SIGHUP};

bool isIgnored(int signal) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

// From here on they wait to be read: what comes before the command runs is kept for it.
int takeSignals() {
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGCHLD);
    for (const int signal : kSignals) {
        if (!isIgnored(signal)) {
            sigaddset(&set, signal);
        }
    }
    sigprocmask(SIG_BLOCK, &set, nullptr);
    return signalfd(-1, &set, SFD_CLOEXEC);
}

class Pipe {
  public:
    Pipe() {
        if (pipe2(ends_, O_CLOEXEC) != 0) {
            throw std::system_error(errno, std::generic_category(), "pipe");
        }
    }
    Pipe(const Pipe &) = delete;
    Pipe &operator=(const Pipe &) = delete;
    ~Pipe() {
        close(ends_[0]);
        closeWriting();
    }

    [[nodiscard]] int reading() const { return ends_[0]; }
    [[nodiscard]] int writing() const { return ends_[1]; }
    void closeWriting() {
        if (ends_[1] >= 0) {
            close(ends_[1]);
            ends_[1] = -1;
        }
    }

    // One read; the number of bytes, 0 when nobody writes any more.
    ssize_t read(char *bytes, size_t size) const {
        ssize_t length = 0;
        do {
            length = ::read(ends_[0], bytes, size);
        } while (length < 0 && errno == EINTR);
        return length;
    }

  private:
    int ends_[2]{-1, -1};
};

// A copy of the descriptor that programs inherit.
int inheritable(int descriptor) {
    return fcntl(descriptor, F_DUPFD, 3);
}

[[noreturn]] void become(std::vector<std::string> &words) {
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string &word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    execv(pointers[0], pointers.data());
    _exit(kExitNoBwrap);
}

// Hands signals to the init until the child has ended; its exit code. `started` becomes true once the command runs: it
// then gets the terminal's signals directly.
int attend(pid_t child, int own, const Pipe &ready, const Pipe &signals, bool &started) {
    bool starting = true;
    int toEnd = 0; // the last SIGTERM or SIGHUP, which decides the exit code in place of the command
    for (int status = 0;;) {
        pollfd watched[] = {{own, POLLIN, 0}, {starting ? ready.reading() : -1, POLLIN, 0}};
        poll(watched, std::size(watched), -1);
        char byte = 0;
        if (watched[1].revents != 0) {
            started = ready.read(&byte, 1) == 1;
            starting = false;
        }
        signalfd_siginfo info{};
        if ((watched[0].revents & POLLIN) == 0 || read(own, &info, sizeof(info)) != sizeof(info)) {
            continue;
        }
        if (info.ssi_signo != SIGCHLD && (!started || info.ssi_code != SI_KERNEL)) {
            const auto number = static_cast<unsigned char>(info.ssi_signo);
            toEnd = number == SIGTERM || number == SIGHUP ? number : toEnd;
            [[maybe_unused]] const ssize_t written = write(signals.writing(), &number, 1);
        }
        if (waitpid(child, &status, WNOHANG) == child) {
            started = started || (starting && ready.read(&byte, 1) == 1);
            if (toEnd != 0) {
                return kExitSignal + toEnd;
            }
            return WIFEXITED(status) ? WEXITSTATUS(status) : kExitSignal + WTERMSIG(status);
        }
    }
}

} // namespace

int runBwrap(std::vector<std::string> arguments, const std::vector<std::string> &command) {
    Pipe complaints; // bubblewrap's standard error
    Pipe ready;      // a byte from the init, then open as long as the box
    Pipe signals;    // to the init
    const int own = takeSignals();
    const pid_t child = own < 0 ? -1 : fork();
    if (child < 0) {
        throw std::system_error(errno, std::generic_category(), "fork");
    }
    if (child == 0) {
        arguments.insert(arguments.end(),
                         {"/opt/lantiq/libexec/caltofal-box-init", std::to_string(inheritable(STDERR_FILENO)),
                          std::to_string(inheritable(ready.writing())),
                          std::to_string(inheritable(signals.reading()))});
        arguments.insert(arguments.end(), command.begin(), command.end());
        dup2(complaints.writing(), STDERR_FILENO);
        become(arguments);
    }
    complaints.closeWriting();
    ready.closeWriting();

    bool started = false;
    const int result = attend(child, own, ready, signals, started);
    close(own);
    if (!started && result < kExitSignal && result != kExitNoBox) {
        char complaint[512];
        const ssize_t length = complaints.read(complaint, sizeof(complaint));
        throw bwrapObstacle(std::string(complaint, length > 0 ? static_cast<size_t>(length) : 0));
    }
    // Whatever became of bubblewrap, the command has ended once the init has.
    char byte = 0;
    ready.read(&byte, 1);
    return result;
}

} // namespace box
