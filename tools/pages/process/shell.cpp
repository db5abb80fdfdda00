// SPDX-License-Identifier: MIT
//
// The library runs the device's tools by system() and popen(). Its calls bind to the functions below, which stand
// before libc's in the search order: what a tool writes past its results goes where the calling thread's ShellOutput
// takes it, other threads and the process's own streams are not touched, and no signal is ignored meanwhile.
#include "pages/process/shell_output.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <mutex>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace pages {
namespace {

struct Stream {
    FILE *file;
    pid_t child;
};

thread_local int captured = -1;

std::mutex streamsGuard;

// Never destroyed: a thread that was left behind still closes its stream while the process ends.
std::vector<Stream> &streams() {
    static auto *const all = new std::vector<Stream>;
    return *all;
}

// The child's standard output and standard error lead into these; -1: where the process's do. 0 where it cannot start.
pid_t startShell(const char *command, int out, int err) {
    posix_spawn_file_actions_t actions;
    if (posix_spawn_file_actions_init(&actions) != 0) {
        return 0;
    }
    if (out >= 0) {
        posix_spawn_file_actions_adddup2(&actions, out, STDOUT_FILENO);
    }
    if (err >= 0) {
        posix_spawn_file_actions_adddup2(&actions, err, STDERR_FILENO);
    }
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // A server blocks signals and ignores this one: a tool could not be ended, or would complain when its reader left.
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigmask(&attributes, &none);
    sigset_t defaults;
    sigemptyset(&defaults);
    sigaddset(&defaults, SIGPIPE);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    char name[] = "sh";
    char option[] = "-c";
    char *const words[] = {name, option, const_cast<char *>(command), nullptr};
    pid_t child = 0;
    const int error = posix_spawn(&child, "/bin/sh", &actions, &attributes, words, environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    errno = error;
    return error == 0 ? child : 0;
}

int endOf(pid_t child) {
    int status = -1;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            return -1;
        }
    }
    return status;
}

FILE *openShell(const char *command) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return nullptr;
    }
    const pid_t child = startShell(command, ends[1], captured);
    close(ends[1]);
    FILE *file = child > 0 ? fdopen(ends[0], "r") : nullptr;
    if (!file) {
        close(ends[0]);
        if (child > 0) {
            endOf(child);
        }
        return nullptr;
    }
    const std::lock_guard lock(streamsGuard);
    streams().push_back({file, child});
    return file;
}

// The process of a stream of openShell(); 0 for another stream.
pid_t forget(FILE *file) {
    const std::lock_guard lock(streamsGuard);
    const auto found =
        std::find_if(streams().begin(), streams().end(), [&](const Stream &stream) { return stream.file == file; });
    if (found == streams().end()) {
        return 0;
    }
    const pid_t child = found->child;
    streams().erase(found);
    return child;
}

} // namespace

int ShellOutput::descriptor() {
    return captured;
}

void ShellOutput::capture(int descriptor) {
    captured = descriptor;
}

} // namespace pages

#define EXPORTED extern "C" __attribute__((visibility("default")))

EXPORTED int system(const char *command) {
    if (!command) {
        return 1;
    }
    const pid_t child = pages::startShell(command, pages::captured, pages::captured);
    return child > 0 ? pages::endOf(child) : -1;
}

// The library only reads from tools.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): libc's names are reserved ones
EXPORTED FILE *popen(const char *command, const char *type) {
    if (type[0] != 'r') {
        errno = EINVAL;
        return nullptr;
    }
    return pages::openShell(command);
}

// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
EXPORTED int pclose(FILE *file) {
    const pid_t child = pages::forget(file);
    fclose(file);
    return child > 0 ? pages::endOf(child) : -1;
}
