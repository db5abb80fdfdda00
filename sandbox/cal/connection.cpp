// SPDX-License-Identifier: MIT
#include "cal/connection.h"

#include "exchange/gateway.h"

#include <pthread.h>
#include <sys/stat.h>

namespace sandbox {

Connection &Connection::instance() {
    static Connection connection;
    return connection;
}

Connection::~Connection() {
    // A thread that still works at the process's end keeps its database; the system closes it.
    const std::unique_lock lock(mutex_, std::try_to_lock);
    if (!lock) {
        static_cast<void>(database_.release());
    }
    database_.reset();
}

bool Connection::isCurrent(const std::string &file) const {
    // A store that this process cannot write may be changed without its knowledge: it is opened anew for each message.
    struct stat status {};
    return database_ && database_->isWritable() && file == file_ && stat(file.c_str(), &status) == 0 &&
           status.st_dev == device_ && status.st_ino == inode_;
}

Database &Connection::open(const Location &location) {
    const std::string file = location.storeFile();
    if (isCurrent(file)) {
        return *database_;
    }
    database_.reset();
    database_ = openGateway(location);
    struct stat status {};
    stat(file.c_str(), &status);
    file_ = file;
    device_ = status.st_dev;
    inode_ = status.st_ino;
    return *database_;
}

// A child that took the parent's connection over would hold locks that the system does not know of. Closed before the
// fork, it leaves nothing behind on either side.
void Connection::beforeFork() {
    Connection &connection = instance();
    connection.mutex_.lock();
    connection.database_.reset();
}

void Connection::afterFork() {
    instance().mutex_.unlock();
}

const bool Connection::kWatchesForks = pthread_atfork(beforeFork, afterFork, afterFork) == 0;

} // namespace sandbox
