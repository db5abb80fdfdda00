// SPDX-License-Identifier: MIT
#include "device/model/driver.h"

#include "device/model/driver_files.h"
#include "device/model/neighbours.h"
#include "device/model/playback.h"
#include "device/model/wifi.h"
#include "exchange/gateway.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sys/inotify.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace device {
namespace {

namespace fs = std::filesystem;
using sandbox::Database;

// A write to the log precedes its commit by a moment: after a sign of one the store is looked at several times.
constexpr int kLooks = 6;
constexpr std::chrono::milliseconds kFirstPause(5); // doubled from look to look

// Readers see the old file or the new one. A recorded one stays.
void replaceFile(const fs::path &file, const std::string &text) {
    if (isRecordedOnly() || fs::exists(recordingOf(file))) {
        return;
    }
    const fs::path draft = file.parent_path() / ("." + file.filename().string());
    std::ofstream(draft) << text;
    fs::rename(draft, file);
}

void removeStrangers(const fs::path &directory, const std::vector<Interface> &interfaces) {
    std::vector<fs::path> strangers;
    for (const fs::directory_entry &entry : fs::directory_iterator(directory)) {
        const bool known = std::any_of(interfaces.begin(), interfaces.end(), [&](const Interface &one) {
            return one.name == entry.path().filename().string();
        });
        if (!known && !fs::exists(recordingOf(entry.path()))) {
            strangers.push_back(entry.path());
        }
    }
    for (const fs::path &stranger : strangers) {
        fs::remove_all(stranger);
    }
}

void writeFiles(const fs::path &directory, const std::vector<Interface> &interfaces,
                const std::vector<Neighbour> &neighbours) {
    for (const Interface &interface : interfaces) {
        const fs::path own = directory / interface.name;
        fs::create_directories(own);
        const std::vector<Station> peers = peersOf(interface, within(neighbours, interface, interfaces));
        replaceFile(own / "PeerFlowStatus", peerFlowStatus(interface.radio, peers));
        replaceFile(own / "channel", channelFigures(interface.radio));
    }
    removeStrangers(directory, interfaces);
}

void copyRecorded(const fs::path &directory) {
    if (const fs::path recorded = recordingOf(directory); fs::exists(recorded)) {
        fs::copy(recorded, directory, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    }
}

// What the driver knows of the store. The connection stays open: opening it for each look would itself change files.
class View {
  public:
    View(sandbox::Location location, fs::path directory)
        : location_(std::move(location)), directory_(std::move(directory)) {
        open();
    }

    void open() {
        database_ = sandbox::openGateway(location_);
        version_ = -1;
    }

    // Writes the files when the store has changed since the last time.
    void refresh() {
        const int64_t version = dataVersion();
        if (version != version_) {
            const sandbox::Transaction transaction(*database_, sandbox::Transaction::Kind::Read);
            writeFiles(directory_, readInterfaces(*database_), readSurroundings(*database_).networks);
            version_ = version;
        }
    }

  private:
    int64_t dataVersion() {
        sandbox::Statement statement(*database_, "PRAGMA data_version");
        return statement.step() ? statement.integer(0) : -1;
    }

    sandbox::Location location_;
    fs::path directory_;
    std::unique_ptr<Database> database_;
    int64_t version_ = -1;
};

// Tells of changes to the store's files.
class Watch {
  public:
    explicit Watch(const sandbox::Location &location)
        : store_(location.name + ".db"), handle_(inotify_init1(IN_CLOEXEC)) {
        if (handle_ < 0 || inotify_add_watch(handle_, location.directory.c_str(), IN_MODIFY | IN_CREATE) < 0) {
            throw std::system_error(errno, std::generic_category(), location.directory);
        }
    }
    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;
    ~Watch() { close(handle_); }

    enum class Sign { None, Changed, Replaced };

    // The next signs, all that are there in one. None when nothing came in time; negative waits for ever.
    Sign next(int timeoutMs) {
        pollfd watched{handle_, POLLIN, 0};
        if (poll(&watched, 1, timeoutMs) <= 0) {
            return Sign::None;
        }
        alignas(inotify_event) char bytes[4096];
        const ssize_t length = read(handle_, bytes, sizeof(bytes));
        Sign sign = Sign::None;
        for (ssize_t at = 0; at < length;) {
            const auto *event = reinterpret_cast<const inotify_event *>(bytes + at);
            sign = std::max(sign, signOf(*event));
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
        return sign;
    }

  private:
    Sign signOf(const inotify_event &event) const {
        const std::string name = event.len > 0 ? event.name : "";
        if ((event.mask & IN_CREATE) != 0) {
            return name == store_ ? Sign::Replaced : Sign::None;
        }
        return name == store_ || name == store_ + "-wal" ? Sign::Changed : Sign::None;
    }

    std::string store_;
    int handle_;
};

[[noreturn]] void keepTrue(View &view, Watch &watch) {
    while (true) {
        Watch::Sign sign = watch.next(-1);
        std::chrono::milliseconds pause = kFirstPause;
        for (int look = 0; sign != Watch::Sign::None && look < kLooks; ++look, pause *= 2) {
            std::this_thread::sleep_for(pause);
            try {
                if (sign == Watch::Sign::Replaced) {
                    view.open();
                    sign = Watch::Sign::Changed;
                }
                view.refresh();
            } catch (const std::exception &) {
                // Busy, or in the middle of being replaced: the next look, or the next sign, may do better.
                continue;
            }
        }
    }
}

// Closes `report` once the files are there; before that it takes why they are not.
[[noreturn]] void serve(const sandbox::Location &location, const std::string &directory, int report) {
    try {
        Watch watch(location); // before the first look, so that no change is missed
        View view(location, directory);
        copyRecorded(directory);
        view.refresh();
        close(report);
        keepTrue(view, watch);
    } catch (const std::exception &error) {
        [[maybe_unused]] const ssize_t written = write(report, error.what(), strlen(error.what()));
        _exit(1);
    }
}

} // namespace

void startDriver(const sandbox::Location &location, const std::string &directory) {
    // SQLite's connections must not be carried across fork(), so the child does all the work and says how it began.
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe");
    }
    const pid_t child = fork();
    if (child < 0) {
        throw std::system_error(errno, std::generic_category(), "fork");
    }
    if (child == 0) {
        serve(location, directory, ends[1]);
    }
    close(ends[1]);
    char reason[1024];
    const ssize_t length = read(ends[0], reason, sizeof(reason));
    close(ends[0]);
    if (length != 0) {
        throw std::runtime_error(length < 0 ? "the driver cannot be heard" : std::string(reason, reason + length));
    }
}

} // namespace device
