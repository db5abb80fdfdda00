// SPDX-License-Identifier: MIT
#pragma once

#include "store/database.h"
#include "store/location.h"

#include <memory>
#include <mutex>
#include <sys/types.h>

namespace sandbox {

// The process's connection to the gateway that the environment chooses: opened on first use, opened again when the
// choice or the file has changed, and on either side of a fork(). For one thread at a time, in turn.
class Connection {
  public:
    // The one of this process.
    static Connection &instance();

    // Lets other threads wait while `use` works with the database of `location`. A database that failed is closed, so
    // that the next message starts afresh.
    template <class Use>
    void with(const Location &location, Use use) {
        const std::lock_guard lock(mutex_);
        try {
            use(open(location));
        } catch (const DatabaseError &error) {
            if (!error.busy()) {
                database_.reset();
            }
            throw;
        }
    }

    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

  private:
    Connection() = default;
    ~Connection();

    Database &open(const Location &location);
    bool isCurrent(const std::string &file) const;
    static void beforeFork();
    static void afterFork();

    std::mutex mutex_;
    std::unique_ptr<Database> database_;
    std::string file_;
    dev_t device_ = 0;
    ino_t inode_ = 0;
    // From the moment that the library is loaded: a fork may come while another thread opens the database for the first
    // time.
    static const bool kWatchesForks;
};

} // namespace sandbox
