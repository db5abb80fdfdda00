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
    while (!done()) {
        if (since(start) >= most) {
            return wait.cancelled() ? Outcome::Cancelled : Outcome::TimeOut;
        }
        wait.progress(what, since(start), most);
        if (!wait.pause(std::min({kTick, pace.unit, most - since(start)}))) {
            return Outcome::Cancelled;
        }
    }
    return Outcome::Done;
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
