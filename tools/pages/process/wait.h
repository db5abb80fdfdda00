// SPDX-License-Identifier: MIT
// Waiting for what the device does in its own time.
#pragma once

#include "caltofal/terminal.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace cli {

// While it lives, the signals of signals.h end a wait rather than the process.
class Interruptible {
  public:
    Interruptible();
    Interruptible(const Interruptible &) = delete;
    Interruptible &operator=(const Interruptible &) = delete;
    ~Interruptible();

    // The signal that came, 0 for none.
    static int signal();
};

// Waits; false as soon as a signal came.
bool pauseFor(std::chrono::milliseconds time);

// How a wait goes: the library's table of intervals, and how long a unit of it lasts.
struct Pace {
    std::span<const uint8_t> intervals;
    std::chrono::milliseconds unit;
};

enum class Outcome { Done, TimeOut, Signal };

// Asks `done` after each interval. Shows `what` and the time gone by.
Outcome askAgain(const Pace &pace, const std::string &what, const std::function<bool()> &done);

// "12 s" since `start`.
std::string secondsSince(std::chrono::steady_clock::time_point start);

} // namespace cli
