// SPDX-License-Identifier: MIT
#include "bwrap.h"

#include "obstacle.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace box {
namespace {

constexpr int kExitSignal = 128;
constexpr int kExitNoBwrap = 1;

volatile sig_atomic_t bwrapProcess = 0;

// bubblewrap dies of it, and the init then tells the command to end.
void passOn(int signal) {
    if (bwrapProcess > 0) {
        kill(bwrapProcess, signal);
    }
}

bool isIgnored(int signal) {
    struct sigaction action {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
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

void setHandler(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

int waitFor(pid_t child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : kExitSignal + WTERMSIG(status);
}

} // namespace

int runBwrap(std::vector<std::string> arguments, const std::vector<std::string> &command) {
    const int ignored = (isIgnored(SIGINT) ? 1 : 0) | (isIgnored(SIGQUIT) ? 2 : 0);
    Pipe complaints; // bubblewrap's standard error
    Pipe ready;      // a byte from the init, then open as long as the box
    setHandler(SIGINT, SIG_IGN);
    setHandler(SIGQUIT, SIG_IGN);
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child < 0) {
        throw std::system_error(errno, std::generic_category(), "fork");
    }
    if (child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        if (getppid() != parent) {
            _exit(kExitNoBwrap);
        }
        arguments.insert(arguments.end(),
                         {"/opt/lantiq/libexec/caltofal-box-init", std::to_string(inheritable(STDERR_FILENO)),
                          std::to_string(inheritable(ready.writing())), std::to_string(ignored)});
        arguments.insert(arguments.end(), command.begin(), command.end());
        dup2(complaints.writing(), STDERR_FILENO);
        become(arguments);
    }
    bwrapProcess = child;
    setHandler(SIGTERM, passOn);
    setHandler(SIGHUP, passOn);
    complaints.closeWriting();
    ready.closeWriting();

    char byte = 0;
    const bool started = ready.read(&byte, 1) == 1;
    const int result = waitFor(child);
    if (!started && result < kExitSignal) {
        char complaint[512];
        const ssize_t length = complaints.read(complaint, sizeof(complaint));
        throw bwrapObstacle(std::string(complaint, length > 0 ? static_cast<size_t>(length) : 0));
    }
    // Whatever became of bubblewrap, the command has ended once the init has.
    ready.read(&byte, 1);
    return result;
}

} // namespace box
