// SPDX-License-Identifier: MIT
// How a program that works in the background tells that it is done: by a file that it writes.
#pragma once

#include <ctime>
#include <string>
#include <sys/types.h>

namespace pages::wifi {

// Which file stands at a path, and since when, at the moment when the object is made.
class FileMark {
  public:
    explicit FileMark(const std::string &path);

    // Whether there is a file that was made or written since `before`. One that is gone is not newer.
    [[nodiscard]] bool isNewerThan(const FileMark &before) const;

  private:
    bool present_ = false;
    ino_t inode_ = 0;
    timespec changed_{};
    off_t size_ = 0;
};

} // namespace pages::wifi
