// SPDX-License-Identifier: MIT
#include "pages/process/wait.h"

#include "caltofal/signals.h"

#include <algorithm>
#include <ctime>

namespace cli {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kTick{200};

} // namespace

Interruptible::Interruptible() {
    deferSignals(true);
}

Interruptible::~Interruptible() {
    deferSignals(false);
}

int Interruptible::signal() {
    return notedSignal();
}

bool pauseFor(milliseconds time) {
    const steady_clock::time_point end = steady_clock::now() + time;
    while (notedSignal() == 0 && steady_clock::now() < end) {
        const auto left = std::min<steady_clock::duration>(kTick, end - steady_clock::now());
        const auto nanoseconds = std::max<int64_t>(0, std::chrono::nanoseconds(left).count());
        const timespec slice = {0, static_cast<long>(nanoseconds)};
        nanosleep(&slice, nullptr);
    }
    return notedSignal() == 0;
}

Outcome askAgain(const Pace &pace, const std::string &what, const std::function<bool()> &done) {
    Progress progress;
    const steady_clock::time_point start = steady_clock::now();
    for (size_t i = 0; i < pace.intervals.size(); ++i) {
        const steady_clock::time_point end = steady_clock::now() + pace.intervals[i] * pace.unit;
        while (steady_clock::now() < end) {
            progress.show(what + ": " + secondsSince(start));
            const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now());
            if (!pauseFor(std::min(kTick, left))) {
                return Outcome::Signal;
            }
        }
        if (done()) {
            return Outcome::Done;
        }
    }
    return Interruptible::signal() != 0 ? Outcome::Signal : Outcome::TimeOut;
}

std::string secondsSince(steady_clock::time_point start) {
    return std::to_string(std::chrono::duration_cast<std::chrono::seconds>(steady_clock::now() - start).count()) + " s";
}

} // namespace cli
