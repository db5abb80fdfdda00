// SPDX-License-Identifier: MIT
//
// The device's system log: what programs hand to syslog(), appended to a file. The init receives it itself, so that
// nothing is lost when the box ends.
#pragma once

namespace box {

class SystemLog {
  public:
    // Makes "/dev/log". Throws std::system_error.
    SystemLog();
    ~SystemLog();
    SystemLog(const SystemLog &) = delete;
    SystemLog &operator=(const SystemLog &) = delete;

    // To be watched for input.
    [[nodiscard]] int descriptor() const { return socket_; }

    // Moves what has been received so far to the file.
    void drain() const;

  private:
    int socket_ = -1;
    int file_ = -1;
};

} // namespace box
