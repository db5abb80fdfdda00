// SPDX-License-Identifier: MIT
#include "caltofal/terminal_wait.h"

#include "caltofal/signals.h"

namespace cli {

TerminalWait::~TerminalWait() {
    if (begun_) {
        deferSignals(deferredBefore_);
    }
}

void TerminalWait::begin() {
    if (!begun_) {
        deferredBefore_ = deferSignals(true);
        begun_ = true;
    }
}

bool TerminalWait::cancelled() {
    return notedSignal() != 0;
}

bool TerminalWait::pause(std::chrono::milliseconds time) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + time;
    for (Clock::time_point now = Clock::now(); !cancelled() && now < end; now = Clock::now()) {
        sleepUntilSignal(end - now);
    }
    return !cancelled();
}

void TerminalWait::progress(const std::string &what, std::chrono::milliseconds gone,
                            std::chrono::milliseconds /*most*/) {
    line_.show(what + ": " + std::to_string(gone / std::chrono::seconds(1)) + " s");
}

} // namespace cli
