// SPDX-License-Identifier: MIT
#include "device/box/mounts.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace box {
namespace {

namespace fs = std::filesystem;
using Arguments = std::vector<std::string>;

// Read-only from the host, in every box.
constexpr const char *kSystem[] = {"/etc", "/sys", "/usr"};
// As links where the host has them as links.
constexpr const char *kSystemOrLink[] = {"/lib", "/lib32", "/lib64", "/libx32", "/sbin"};
// The box's own, with all below them.
constexpr const char *kOwn[] = {"/bin", "/dev", "/opt/lantiq", "/opt/meshgrove", "/proc"};
// The box's own, but what is below them may be the host's.
constexpr const char *kOwnTop[] = {"/", "/opt", "/run"};

constexpr const char *kDevices[] = {"full", "null", "ptmx", "pts", "random", "tty", "urandom", "zero"};

// Programs that a shell of the box takes from BusyBox even where it prefers files.
constexpr const char *kApplets[] = {"ash", "killall", "logger", "setsid", "sh", "usleep"};

void append(Arguments &arguments, std::initializer_list<std::string> more) {
    arguments.insert(arguments.end(), more);
}

bool isBelow(const std::string &path, const std::string &directory) {
    return path == directory || directory == "/" || path.starts_with(directory + "/");
}

template <class Directories>
bool isBelowAny(const std::string &path, const Directories &directories) {
    return std::any_of(std::begin(directories), std::end(directories),
                       [&](const char *directory) { return isBelow(path, directory); });
}

bool isOwn(const std::string &path) {
    return isBelowAny(path, kOwn) || std::find(std::begin(kOwnTop), std::end(kOwnTop), path) != std::end(kOwnTop);
}

bool isSystem(const std::string &path) {
    return isBelowAny(path, kSystem) || isBelowAny(path, kSystemOrLink);
}

void appendSystem(Arguments &arguments) {
    for (const char *directory : kSystem) {
        append(arguments, {"--ro-bind-try", directory, directory});
    }
    for (const char *directory : kSystemOrLink) {
        if (fs::is_symlink(directory)) {
            append(arguments, {"--symlink", fs::read_symlink(directory).string(), directory});
        } else {
            append(arguments, {"--ro-bind-try", directory, directory});
        }
    }
    // The init links the host's programs into the box's /bin.
    if (!fs::is_symlink("/bin")) {
        append(arguments, {"--ro-bind-try", "/bin", "/run/host/bin"});
    }
}

void appendKernel(Arguments &arguments) {
    // The init makes the other links of /proc, but needs this one from its first moment.
    append(arguments, {"--dir", "/proc/net/mtlk", "--proc", "/proc/.kernel", "--symlink", ".kernel/self", "/proc/self",
                       "--tmpfs", "/dev"});
    for (const char *device : kDevices) {
        append(arguments, {"--dev-bind-try", std::string("/dev/") + device, std::string("/dev/") + device});
    }
    append(arguments, {"--perms", "1777", "--dir", "/dev/shm", "--symlink", "/proc/self/fd", "/dev/fd"});
    const char *const streams[] = {"stdin", "stdout", "stderr"};
    for (size_t i = 0; i < std::size(streams); ++i) {
        append(arguments, {"--symlink", "/proc/self/fd/" + std::to_string(i), std::string("/dev/") + streams[i]});
    }
}

// Directories that programs expect, empty.
void appendScratch(Arguments &arguments) {
    append(arguments, {"--perms", "1777", "--dir", "/tmp", "--perms", "1777", "--dir", "/var/tmp", "--dir", "/run",
                       "--symlink", "../run", "/var/run"});
    for (const char *variable : {"HOME", "TMPDIR"}) {
        const char *directory = std::getenv(variable);
        if (directory != nullptr && directory[0] == '/' && !isOwn(directory)) {
            append(arguments, {"--dir", directory});
        }
    }
}

void appendDevice(Arguments &arguments, const Places &places, const std::string &state) {
    for (const char *directory : {"/bin", "/opt", "/opt/lantiq", "/opt/lantiq/busybox", "/opt/lantiq/etc"}) {
        append(arguments, {"--dir", directory}); // else nobody but the owner could enter them
    }
    append(arguments, {"--ro-bind", places.busybox, "/bin/busybox", "--symlink", "busybox", "/bin/sh"});
    for (const char *applet : kApplets) {
        append(arguments, {"--symlink", "/bin/busybox", std::string("/opt/lantiq/busybox/") + applet});
    }
    for (const char *part : {"bin", "lib", "sbin"}) {
        const std::string directory = std::string("/opt/lantiq/") + part;
        append(arguments, {"--ro-bind", places.device + directory, directory});
    }
    // The directory itself is writable: programs open files in it for appending.
    for (const fs::directory_entry &entry : fs::directory_iterator(places.device + "/opt/lantiq/etc")) {
        append(arguments, {"--ro-bind", entry.path().string(), "/opt/lantiq/etc/" + entry.path().filename().string()});
    }
    append(arguments, {"--ro-bind", places.device + "/opt/meshgrove", "/opt/meshgrove", "--ro-bind", places.programs,
                       "/opt/lantiq/libexec", "--bind", state, "/opt/lantiq/var", "--bind", state + "/wlan_wave",
                       "/tmp/wlan_wave", "--symlink", "../var/confs", "/opt/lantiq/wave/confs"});
}

} // namespace

bool Shown::has(const std::string &path) const {
    return isSystem(path) || std::any_of(entries_.begin(), entries_.end(),
                                         [&](const Entry &entry) { return isBelow(path, entry.directory); });
}

void Shown::add(const std::string &directory, bool writable) {
    const bool shown = std::any_of(entries_.begin(), entries_.end(), [&](const Entry &entry) {
        return isBelow(directory, entry.directory) && (entry.writable || !writable);
    });
    if (!shown && !isSystem(directory) && !isOwn(directory)) {
        entries_.push_back({directory, writable});
    }
}

void Shown::appendTo(Arguments &arguments) const {
    std::vector<Entry> outerFirst = entries_;
    std::sort(outerFirst.begin(), outerFirst.end(),
              [](const Entry &a, const Entry &b) { return a.directory.size() < b.directory.size(); });
    for (const Entry &entry : outerFirst) {
        append(arguments, {entry.writable ? "--bind" : "--ro-bind", entry.directory, entry.directory});
    }
}

Arguments mountArguments(const Places &places, const std::string &state, const Shown &shown) {
    Arguments arguments;
    appendSystem(arguments);
    appendKernel(arguments);
    appendScratch(arguments);
    shown.appendTo(arguments);
    appendDevice(arguments, places, state);
    return arguments;
}

} // namespace box
