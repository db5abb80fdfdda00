// SPDX-License-Identifier: MIT
#include "caltofal/device.h"

#include "caltofal/exit.h"
#include "caltofal/signals.h"
#include "pages/layer/query.h"
#include "pages/layer/request_log.h"
#include "pages/process/shell_output.h"

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace cli {

using namespace pages;

namespace {

constexpr const char *kSandbox = "caltofal-sandbox";

struct CommandLine {
    char **words = nullptr;
    bool json = false;
} commandLine;

std::string environment(const char *variable) {
    const char *text = getenv(variable);
    return text ? text : "";
}

std::string ownPath() {
    std::array<char, PATH_MAX> path{};
    const ssize_t length = readlink("/proc/self/exe", path.data(), path.size());
    return {path.data(), length > 0 ? static_cast<size_t>(length) : 0};
}

// Beside the tool, where both are built and installed; else wherever PATH has it.
std::string sandboxPath(const std::string &own) {
    std::string beside = own.substr(0, own.rfind('/') + 1) + kSandbox;
    return access(beside.c_str(), X_OK) == 0 ? beside : kSandbox;
}

// Returns when the sandbox cannot be started.
void become(std::vector<std::string> words) {
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string &word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    execvp(pointers[0], pointers.data());
}

// A gateway that is not there is told by the layer, as with every other command.
void checkStore() {
    try {
        get({{"Device.X_ZINTU_CurrentNetwork"}}, Reading::Leaf);
    } catch (const Failure &failure) {
        if (failure.category() == Category::NoLayer) {
            throw;
        }
    }
}

// The sandbox says in its own words why there can be no box. Who asked for JSON gets them as JSON.
void checkBox(const std::string &sandbox) {
    ShellOutput output;
    const pid_t child = fork();
    if (child == 0) {
        dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
        dup2(ShellOutput::descriptor(), STDERR_FILENO);
        become({sandbox, "run", "--check"});
        _exit(kDone); // said afterwards, in the tool's words
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    const std::string complaint = output.end();
    if (WIFEXITED(status) && WEXITSTATUS(status) != kDone) {
        const std::string name = std::string(kSandbox) + ": ";
        throw Failure(static_cast<Category>(WEXITSTATUS(status)),
                      complaint.starts_with(name) ? complaint.substr(name.size()) : complaint);
    }
}

void checkGateway() {
    const std::string inside = environment("CALTOFAL_BOX_GATEWAY");
    const std::string wanted = environment("CALTOFAL_GATEWAY");
    if (!inside.empty() && !wanted.empty() && inside != wanted) {
        throw Usage("this is the box of gateway " + inside + ", not of " + wanted);
    }
}

} // namespace

void rememberCommandLine(char **argv, bool json) {
    commandLine = {argv, json};
}

void needDevice() {
    if (!isSandbox()) {
        return;
    }
    if (environment("CALTOFAL_BOX") == "1") {
        checkGateway();
        return;
    }
    checkStore();
    std::error_code gone;
    static_cast<void>(std::filesystem::current_path(gone)); // the command keeps it in the box
    if (gone) {
        throw Failure(Category::Failed, "the current directory is no longer there: change to another one");
    }
    const std::string own = ownPath();
    const std::string sandbox = sandboxPath(own);
    if (commandLine.json) {
        checkBox(sandbox);
    }
    std::vector<std::string> words = {sandbox, "run", "--", own};
    for (char **word = commandLine.words + 1; *word; ++word) {
        words.emplace_back(*word);
    }
    setenv("CALTOFAL_BOX_HOLD_SIGNALS", "1", 1); // until the tool watches them in the box
    holdSignals(true);
    become(words);
    const int error = errno;
    holdSignals(false);
    throw Failure(kNoBox, std::string(kSandbox) + " cannot be started: " + strerror(error));
}

} // namespace cli
