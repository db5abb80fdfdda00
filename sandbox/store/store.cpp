// SPDX-License-Identifier: MIT
#include "store/store.h"

#include "caltofal.h"
#include "store/schema.h"
#include "store/store_access.h"
#include "value/escape.h"
#include "value/refusal.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sandbox {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kStoreSuffix = ".db";
constexpr std::string_view kDraftSuffix = ".draft";

[[noreturn]] void refuse(const std::string &file, int error) {
    throw Refusal(CALTOFAL_STORE_FAILED, file + ": " + std::strerror(error));
}

void refuseBadName(const std::string &name, bool (*isGood)(std::string_view)) {
    if (!isGood(name)) {
        throw WrongName(CALTOFAL_NO_GATEWAY, quotedShort(name) + " is not a gateway name: it begins with a letter, a "
                                                                 "digit or '_', and goes on with these, '.' and '-'");
    }
}

std::unique_ptr<Database> openDatabase(const std::string &file, Database::Open how) {
    auto database = std::make_unique<Database>(file, how, std::chrono::milliseconds(lockPatienceMs()));
    database->execute("PRAGMA temp_store = MEMORY");
    return database;
}

void makeDirectory(const std::string &directory) {
    std::error_code error;
    fs::create_directories(directory, error);
    if (error) {
        refuse(directory, error.value());
    }
    if (access(directory.c_str(), W_OK) != 0) {
        refuse(directory, errno);
    }
}

// Keeps other processes from making or removing gateways in the directory, up to scope end.
class DirectoryLock {
  public:
    explicit DirectoryLock(const std::string &directory)
        : handle_(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        if (handle_ < 0 || flock(handle_, LOCK_EX) != 0) {
            const int error = errno;
            close(handle_);
            refuse(directory, error);
        }
    }
    DirectoryLock(const DirectoryLock &) = delete;
    DirectoryLock &operator=(const DirectoryLock &) = delete;
    ~DirectoryLock() { close(handle_); }

  private:
    int handle_;
};

// What SQLite keeps beside a store. Left over from another store of the name, it would spoil a new one.
void removeCompanions(const std::string &file) {
    for (const char *suffix : {"-wal", "-shm"}) {
        unlink((file + suffix).c_str());
    }
}

// A store in the making, under a name of its own; gone at scope end.
class Draft {
  public:
    explicit Draft(const Location &location)
        : file_(location.directory + "/" + location.name + "." + std::to_string(getpid()) + "." + nextNumber() +
                std::string(kDraftSuffix)) {
        sweep(location);
        unlink(file_.c_str());
    }
    Draft(const Draft &) = delete;
    Draft &operator=(const Draft &) = delete;
    ~Draft() { unlink(file_.c_str()); }

    const std::string &file() const { return file_; }

  private:
    // Several threads of a process may each be making one.
    static std::string nextNumber() {
        static std::atomic<unsigned> number{0};
        return std::to_string(number++);
    }

    // Drops what processes that were killed left behind.
    static void sweep(const Location &location) {
        const std::string prefix = location.name + ".";
        std::error_code error;
        for (const fs::directory_entry &entry : fs::directory_iterator(location.directory, error)) {
            const std::string name = entry.path().filename().string();
            if (!name.starts_with(prefix) || name.find(kDraftSuffix) == std::string::npos) {
                continue;
            }
            const auto pid = static_cast<pid_t>(std::atol(name.c_str() + prefix.size()));
            if (pid > 0 && kill(pid, 0) != 0 && errno == ESRCH) {
                unlink(entry.path().c_str());
            }
        }
    }

    std::string file_;
};

void make(const std::string &file, const std::function<void(Database &)> &fill) {
    const std::unique_ptr<Database> database = openDatabase(file, Database::Open::New);
    // Nobody sees the draft before it is whole, and a torn one is thrown away.
    database->execute("PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY");
    {
        Transaction transaction(*database, Transaction::Kind::Write);
        createSchema(*database, fill);
        transaction.commit();
    }
    database->execute("PRAGMA journal_mode = WAL");
}

} // namespace

bool storeExists(const Location &location) {
    refuseBadName(location.name, isGatewayName);
    struct stat status {};
    const std::string file = location.storeFile();
    if (stat(file.c_str(), &status) == 0) {
        return true;
    }
    if (errno != ENOENT) {
        refuse(file, errno);
    }
    return false;
}

Refusal noGateway(const Location &location, const std::string &hint) {
    return {CALTOFAL_NO_GATEWAY,
            "there is no gateway " + quotedShort(location.name) + " in " + location.directory + hint};
}

std::unique_ptr<Database> openStore(const Location &location) {
    if (!storeExists(location)) {
        throw noGateway(location);
    }
    std::unique_ptr<Database> database = openDatabase(location.storeFile(), howToOpen(location));
    // With a write-ahead log this loses nothing when a process dies, only when the machine does.
    database->execute("PRAGMA synchronous = NORMAL");
    checkSchema(*database, location.storeFile());
    return database;
}

bool createStore(const Location &location, const std::function<void(Database &)> &fill) {
    if (storeExists(location)) {
        return false;
    }
    refuseBadName(location.name, isNewGatewayName);
    makeDirectory(location.directory);
    const Draft draft(location);
    make(draft.file(), fill);
    const DirectoryLock lock(location.directory);
    if (storeExists(location)) {
        return false;
    }
    removeCompanions(location.storeFile());
    if (link(draft.file().c_str(), location.storeFile().c_str()) != 0) {
        refuse(location.storeFile(), errno);
    }
    return true;
}

bool removeStore(const Location &location) {
    if (!storeExists(location)) {
        return false;
    }
    const DirectoryLock lock(location.directory);
    const std::string file = location.storeFile();
    if (unlink(file.c_str()) != 0) {
        refuse(file, errno);
    }
    removeCompanions(file);
    for (const std::string &log : {location.logFile(), location.logFile() + ".old"}) {
        unlink(log.c_str());
    }
    return true;
}

std::vector<std::string> storeNames(const std::string &directory) {
    std::vector<std::string> names;
    std::error_code error;
    for (const fs::directory_entry &entry : fs::directory_iterator(directory, error)) {
        std::string name = entry.path().filename().string();
        if (name.ends_with(kStoreSuffix) && name.size() > kStoreSuffix.size()) {
            name.resize(name.size() - kStoreSuffix.size());
            names.push_back(std::move(name));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace sandbox
