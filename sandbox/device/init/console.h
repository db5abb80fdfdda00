// SPDX-License-Identifier: MIT
//
// The device's console. Programs open it anew for each line, read-write and without O_APPEND: on a plain file each
// line would overwrite the one before. So it is a pipe with a name, emptied into a file that grows.
#pragma once

#include <string>

namespace box {

class Console {
  public:
    // Makes "/dev/console". Throws std::system_error.
    Console();
    ~Console();
    Console(const Console &) = delete;
    Console &operator=(const Console &) = delete;

    // To be watched for input.
    [[nodiscard]] int descriptor() const { return pipe_; }

    // Moves what has been written so far to the file, and answers it.
    std::string drain() const; // NOLINT(modernize-use-nodiscard): most callers want it moved only

  private:
    int pipe_ = -1;
    int file_ = -1;
};

} // namespace box
