// SPDX-License-Identifier: MIT
// Waiting for what the device does in its own time. How a program waits, what it shows meanwhile and who may end it is
// its own: a command line has its signals, a server its jobs.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace pages {

class Wait {
  public:
    Wait() = default;
    Wait(const Wait &) = delete;
    Wait &operator=(const Wait &) = delete;
    virtual ~Wait() = default;

    // What follows is in progress on the device: from now on cancelled() says whether it has to end.
    virtual void begin() {}

    // Waits; false as soon as it was cancelled.
    virtual bool pause(std::chrono::milliseconds time) = 0;

    virtual bool cancelled() = 0;

    // What is waited for, how long by now, and how long at most (0: not known).
    virtual void progress(const std::string &what, std::chrono::milliseconds gone, std::chrono::milliseconds most) = 0;
};

// How a wait goes: the library's table of intervals, and how long a unit of it lasts.
struct Pace {
    std::span<const uint8_t> intervals;
    std::chrono::milliseconds unit{1000};
};

enum class Outcome { Done, TimeOut, Cancelled };

// Asks `done` again and again, until the intervals are over.
Outcome askAgain(Wait &wait, const Pace &pace, const std::string &what, const std::function<bool()> &done);

// Waits until `done`, however long that takes; false when it was cancelled.
bool waitFor(Wait &wait, const std::string &what, const std::function<bool()> &done);

} // namespace pages
