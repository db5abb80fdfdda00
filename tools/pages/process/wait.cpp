// SPDX-License-Identifier: MIT
#include "pages/process/wait.h"

#include <algorithm>
#include <numeric>

namespace pages {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kTick{200};

milliseconds since(steady_clock::time_point start) {
    return std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
}

} // namespace

Outcome askAgain(Wait &wait, const Pace &pace, const std::string &what, const std::function<bool()> &done) {
    const milliseconds most = std::accumulate(pace.intervals.begin(), pace.intervals.end(), 0) * pace.unit;
    const steady_clock::time_point start = steady_clock::now();
    for (const uint8_t interval : pace.intervals) {
        const steady_clock::time_point end = steady_clock::now() + interval * pace.unit;
        while (steady_clock::now() < end) {
            wait.progress(what, since(start), most);
            const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now());
            if (!wait.pause(std::min(kTick, left))) {
                return Outcome::Cancelled;
            }
        }
        if (done()) {
            return Outcome::Done;
        }
    }
    return wait.cancelled() ? Outcome::Cancelled : Outcome::TimeOut;
}

bool waitFor(Wait &wait, const std::string &what, const std::function<bool()> &done) {
    const steady_clock::time_point start = steady_clock::now();
    while (!done()) {
        wait.progress(what, since(start), milliseconds(0));
        if (!wait.pause(kTick)) {
            return false;
        }
    }
    return true;
}

} // namespace pages
