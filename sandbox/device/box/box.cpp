// SPDX-License-Identifier: MIT
#include "device/box/box.h"

#include "device/box/bwrap.h"
#include "device/box/mounts.h"
#include "device/box/obstacle.h"
#include "device/box/places.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <unistd.h>

namespace box {
namespace {

namespace fs = std::filesystem;

std::string environment(const char *variable, const char *fallback) {
    const char *text = std::getenv(variable);
    return text != nullptr ? text : fallback;
}

std::string realDirectory(const fs::path &directory) {
    const fs::path real = fs::canonical(directory);
    if (!fs::is_directory(real)) {
        throw std::runtime_error(directory.string() + " is not a directory");
    }
    return real.string();
}

// A program's directory; of one in a bin/ also what belongs to it beside that.
void showDirectoryOf(Shown &shown, const fs::path &file) {
    const fs::path directory = file.parent_path();
    shown.add(directory.string(), false);
    if (directory.filename() == "bin") {
        for (const char *sibling : {"lib", "lib64", "libexec", "share"}) {
            if (const fs::path place = directory.parent_path() / sibling; fs::is_directory(place)) {
                shown.add(place.string(), false);
            }
        }
    }
}

// The program may lie where the box has nothing of the host.
void showProgram(Shown &shown, const std::string &program) {
    const bool isPath = program.find('/') != std::string::npos;
    const std::string file = isPath ? program : findProgram(program);
    if (!file.empty() && fs::exists(file)) {
        showDirectoryOf(shown, fs::absolute(file).lexically_normal());
        showDirectoryOf(shown, fs::canonical(file));
    }
}

void showLibraries(Shown &shown) {
    std::istringstream directories(environment("LD_LIBRARY_PATH", ""));
    for (std::string directory; std::getline(directories, directory, ':');) {
        if (!directory.empty() && fs::is_directory(directory)) {
            shown.add(realDirectory(directory), false);
        }
    }
}

// The file that takes the trace of messages, at its own path.
void showTrace(Shown &shown) {
    const std::string named = environment("CALTOFAL_SANDBOX_TRACE", "");
    if (named.empty() || named == "-") {
        return;
    }
    const std::string file = fs::absolute(named).lexically_normal().string();
    const std::ofstream made(file, std::ios::app); // what a box shows must be there
    if (fs::exists(file)) {
        shown.add(file, true);
        setenv("CALTOFAL_SANDBOX_TRACE", file.c_str(), 1);
    }
}

Shown shownFor(const Request &request, const Places &places, const std::string &storeDirectory) {
    Shown shown;
    shown.add(fs::current_path().string(), true);
    shown.add(storeDirectory, true);
    for (const std::string &directory : request.shown) {
        shown.add(realDirectory(directory), true);
    }
    shown.add(places.prefix, false);
    showProgram(shown, request.command.front());
    showLibraries(shown);
    showTrace(shown);
    return shown;
}

void setEnvironment(const Request &request, const Places &places, const std::string &storeDirectory) {
    const std::string path = "/opt/lantiq/bin:/opt/lantiq/busybox:" + places.prefix +
                             "/bin:" + environment("PATH", "/usr/local/bin:/usr/bin:/bin");
    setenv("PATH", path.c_str(), 1);
    setenv("CALTOFAL_BOX", "1", 1);
    setenv("CALTOFAL_BOX_GATEWAY", request.gateway.name.c_str(), 1);
    setenv("CALTOFAL_GATEWAY", request.gateway.name.c_str(), 1);
    setenv("CALTOFAL_SANDBOX_DIR", storeDirectory.c_str(), 1);
}

// In a box already: this process becomes the command.
[[noreturn]] void become(const Request &request) {
    if (const std::string own = environment("CALTOFAL_BOX_GATEWAY", ""); own != request.gateway.name) {
        throw std::runtime_error("this is the box of gateway " + own + ", not of " + request.gateway.name);
    }
    std::vector<char *> words;
    for (const std::string &word : request.command) {
        words.push_back(const_cast<char *>(word.c_str()));
    }
    words.push_back(nullptr);
    execvp(words[0], words.data());
    throw std::runtime_error(request.command.front() + ": " + std::strerror(errno));
}

} // namespace

bool isInside() {
    return environment("CALTOFAL_BOX", "") == "1";
}

int run(const Request &request) {
    if (isInside()) {
        become(request);
    }
    const Places places = findPlaces();
    const std::string storeDirectory = realDirectory(request.gateway.directory);
    const State state({storeDirectory, request.gateway.name});
    if (!state.obstacle().empty()) {
        std::cerr << "caltofal-sandbox: " << state.obstacle() << ": what the device writes is kept for this run only\n";
    }
    const Shown shown = shownFor(request, places, storeDirectory);
    const std::string here = fs::current_path().string();

    std::vector<std::string> arguments{places.bwrap, "--unshare-pid", "--as-pid-1"};
    const std::vector<std::string> mounts = mountArguments(places, state.directory(), shown);
    arguments.insert(arguments.end(), mounts.begin(), mounts.end());
    arguments.insert(arguments.end(), {"--chdir", shown.has(here) ? here : "/", "--"});
    setEnvironment(request, places, storeDirectory);
    return runBwrap(arguments, request.command);
}

} // namespace box
