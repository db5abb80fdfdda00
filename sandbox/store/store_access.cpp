// SPDX-License-Identifier: MIT
#include "store/store_access.h"

#include "caltofal.h"
#include "value/refusal.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace sandbox {
namespace {

// 0, or the error that stands against it.
int obstacle(const std::string &path, int mode) {
    return access(path.c_str(), mode) == 0 ? 0 : errno;
}

off_t sizeOf(const std::string &file) {
    struct stat status {};
    return stat(file.c_str(), &status) == 0 ? status.st_size : 0;
}

[[noreturn]] void refuse(const std::string &file, const std::string &reason) {
    throw Refusal(CALTOFAL_STORE_FAILED, file + ": " + reason);
}

} // namespace

Database::Open howToOpen(const Location &location) {
    const std::string store = location.storeFile();
    if (const int error = obstacle(store, R_OK); error != 0) {
        refuse(store, std::strerror(error));
    }
    const int folder = obstacle(location.directory, W_OK);
    if (folder == 0 && obstacle(store, W_OK) == 0) {
        return Database::Open::Existing;
    }
    // The log, and its index that several processes share, are there while somebody who may write uses the store.
    const std::string log = store + "-wal";
    if (folder != EROFS && obstacle(log, R_OK) == 0 && obstacle(store + "-shm", R_OK) == 0) {
        return Database::Open::Reading;
    }
    if (sizeOf(log) > 0) {
        refuse(log, "holds changes that can only be taken in by who may write there");
    }
    return Database::Open::Unchanging;
}

} // namespace sandbox
