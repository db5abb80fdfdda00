// SPDX-License-Identifier: MIT
#include "device/box/places.h"

#include "device/box/obstacle.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <unistd.h>
#include <vector>

namespace box {
namespace {

namespace fs = std::filesystem;

constexpr uintmax_t kLogMax = 1 << 20; // bytes; a larger log starts anew with the next box

std::string directoryOfState(const sandbox::Location &gateway) {
    return fs::absolute(gateway.directory).lexically_normal().string() + "/" + gateway.name + ".box";
}

std::string needProgram(const std::string &name, const std::string &package) {
    std::string file = findProgram(name);
    if (file.empty()) {
        throw Obstacle(name + " is not installed: install the package " + package + ", on Debian with apt install " +
                       package);
    }
    return file;
}

} // namespace

std::string findProgram(const std::string &name) {
    const char *path = std::getenv("PATH");
    std::istringstream directories(path != nullptr ? path : "/usr/bin:/bin");
    for (std::string directory; std::getline(directories, directory, ':');) {
        std::string file = (directory.empty() ? "." : directory) + "/" + name;
        if (access(file.c_str(), X_OK) == 0 && !fs::is_directory(file)) {
            return file;
        }
    }
    return "";
}

Places findPlaces() {
    Places places;
    const fs::path own = fs::read_symlink("/proc/self/exe").parent_path();
    places.prefix = own.parent_path().string();
    places.device = (own / CALTOFAL_DEVICE_FILES).lexically_normal().string();
    places.programs = (own / CALTOFAL_DEVICE_PROGRAMS).lexically_normal().string();
    for (const std::string &part : {places.device, places.programs + "/caltofal-box-init"}) {
        if (!fs::exists(part)) {
            throw Obstacle(part + " is missing: install caltofal-sandbox as a whole");
        }
    }
    places.bwrap = needProgram("bwrap", "bubblewrap");
    places.busybox = needProgram("busybox", "busybox-static");
    return places;
}

namespace {

constexpr const char *kStateParts[] = {"gddbc", "log", "servd", "wlan_wave"};

void setLogsAside(const sandbox::Location &gateway) {
    for (const std::string &log : {consoleFile(gateway), messagesFile(gateway)}) {
        std::error_code absent;
        if (const auto size = fs::file_size(log, absent); !absent && size > kLogMax) {
            fs::rename(log, log + ".old");
        }
    }
}

void makeParts(const std::string &directory) {
    for (const char *part : kStateParts) {
        fs::create_directories(directory + "/" + part);
    }
}

// What stands against a box that writes there; "" for nothing.
std::string obstacleTo(const sandbox::Location &gateway, const std::string &directory) {
    std::vector<std::string> needed = {directory, consoleFile(gateway), messagesFile(gateway)};
    for (const char *part : kStateParts) {
        needed.push_back(directory + "/" + part);
    }
    for (const std::string &path : needed) {
        if (access(path.c_str(), W_OK) != 0 && errno != ENOENT) {
            return path + ": " + std::strerror(errno);
        }
    }
    return "";
}

std::string temporaryCopy(const std::string &directory) {
    std::string copy = (fs::temp_directory_path() / "caltofal-box-XXXXXX").string();
    if (mkdtemp(copy.data()) == nullptr) {
        throw std::runtime_error(copy + ": " + std::strerror(errno));
    }
    std::error_code unreadable;
    for (const fs::directory_entry &entry : fs::directory_iterator(directory, unreadable)) {
        std::error_code lost; // what cannot be read is done without
        fs::copy(entry.path(), fs::path(copy) / entry.path().filename(), fs::copy_options::recursive, lost);
    }
    makeParts(copy);
    return copy;
}

} // namespace

State::State(const sandbox::Location &gateway) : directory_(directoryOfState(gateway)) {
    try {
        makeParts(directory_);
        setLogsAside(gateway);
        obstacle_ = obstacleTo(gateway, directory_);
    } catch (const fs::filesystem_error &error) {
        obstacle_ = error.path1().string() + ": " + error.code().message();
    }
    if (!obstacle_.empty()) {
        directory_ = temporaryCopy(directory_);
    }
}

State::~State() {
    std::error_code ignored;
    if (!obstacle_.empty()) {
        fs::remove_all(directory_, ignored);
    }
}

void removeState(const sandbox::Location &gateway) {
    fs::remove_all(directoryOfState(gateway));
}

std::string consoleFile(const sandbox::Location &gateway) {
    return directoryOfState(gateway) + "/log/console";
}

std::string messagesFile(const sandbox::Location &gateway) {
    return directoryOfState(gateway) + "/log/messages";
}

} // namespace box
