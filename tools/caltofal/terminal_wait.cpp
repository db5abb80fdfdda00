// SPDX-License-Identifier: MIT
#include "caltofal/terminal_wait.h"

#include "caltofal/signals.h"

#include <algorithm>
#include <ctime>

namespace cli {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kTick{200};

} // namespace

TerminalWait::~TerminalWait() {
    deferSignals(false);
}

void TerminalWait::begin() {
    deferSignals(true);
}

bool TerminalWait::cancelled() {
    return notedSignal() != 0;
}

// In slices, as a signal may come just before one.
bool TerminalWait::pause(milliseconds time) {
    const steady_clock::time_point end = steady_clock::now() + time;
    while (!cancelled() && steady_clock::now() < end) {
        const auto left = std::min<steady_clock::duration>(kTick, end - steady_clock::now());
        const auto nanoseconds = std::max<int64_t>(0, std::chrono::nanoseconds(left).count());
        const timespec slice = {0, static_cast<long>(nanoseconds)};
        nanosleep(&slice, nullptr);
    }
    return !cancelled();
}

void TerminalWait::progress(const std::string &what, milliseconds gone, milliseconds /*most*/) {
    line_.show(what + ": " + std::to_string(gone / std::chrono::seconds(1)) + " s");
}

} // namespace cli
