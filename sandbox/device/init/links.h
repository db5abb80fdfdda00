// SPDX-License-Identifier: MIT
//
// The directories of the box that are made of links.
//
// The kernel's own /proc/net is a link into /proc/PID/net, where nothing can be added. The box's /proc is therefore a
// plain directory of links into the real one at /proc/.kernel. Only /proc/net is a directory, with the
// kernel's files and room for the driver's.
#pragma once

#include <sys/types.h>

namespace box {

constexpr const char *kKernelProc = "/proc/.kernel";

// Links everything of the system's program directories into /bin, where sh is already the device's own.
void linkPrograms();

// Fills /proc, without the processes.
void linkProc();

// The links /proc/PID. Processes are numbered upwards, so they are made a stock at a time.
class ProcessLinks {
  public:
    // Keeps the links ahead of the last process number that was given.
    void extend();

  private:
    pid_t linked_ = 0;
};

} // namespace box
