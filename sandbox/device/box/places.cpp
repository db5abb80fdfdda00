// SPDX-License-Identifier: MIT
#include "device/box/places.h"

#include "device/box/obstacle.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <unistd.h>

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

std::string stateDirectory(const sandbox::Location &gateway) {
    std::string directory = directoryOfState(gateway);
    for (const std::string &log : {consoleFile(gateway), messagesFile(gateway)}) {
        std::error_code absent;
        if (const auto size = fs::file_size(log, absent); !absent && size > kLogMax) {
            fs::rename(log, log + ".old");
        }
    }
    for (const char *part : {"gddbc", "log", "servd", "wlan_wave"}) {
        fs::create_directories(directory + "/" + part);
    }
    return directory;
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
