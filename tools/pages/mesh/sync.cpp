// SPDX-License-Identifier: MIT
#include "pages/mesh/pages.h"

#include "caltofal.h"
#include "caltofal/device.h"
#include "caltofal/signals.h"
#include "pages/failure.h"
#include "pages/process/shell_output.h"
#include "pages/process/wait.h"

#include <future>
#include <memory>
#include <thread>

namespace cli::mesh {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kTick{200};

// The library passes over these in silence. nullptr where there is something to do.
const char *obstacle(const State &now) {
    if (!now.enabled) {
        return "the mesh is off";
    }
    if (!now.master) {
        return "this gateway is not the master";
    }
    return now.satellites > 0 ? nullptr : "no satellite is connected";
}

// The library waits some seconds after it told the daemon: on a thread of its own, which a signal leaves behind.
std::future<void> startSync() {
    holdSignals(true);
    std::promise<void> promise;
    std::future<void> ended = promise.get_future();
    std::thread([promise = std::move(promise)]() mutable {
        ZINTU_meshgrove_sync_to_slave();
        promise.set_value();
    }).detach();
    holdSignals(false);
    return ended;
}

void sync() {
    const Interruptible interruptible;
    Progress progress;
    ShellOutput output;
    const steady_clock::time_point start = steady_clock::now();
    const std::future<void> ended = startSync();
    while (ended.wait_for(milliseconds(0)) != std::future_status::ready) {
        progress.show("the satellites take the settings: " + secondsSince(start));
        if (!pauseFor(kTick)) {
            throw Interrupted(Interruptible::signal(), "interrupted: the satellites take the settings all the same");
        }
    }
    if (const std::string complaint = output.end(); !complaint.empty()) {
        failOfShell("the satellites were not told", complaint);
    }
}

Report run() {
    needDevice();
    const State now = state();
    const char *reason = obstacle(now);
    Report result{{{"synced", reason == nullptr}, {"satellites", now.satellites}}, {}, {}, {}};
    if (reason) {
        result.json["reason"] = reason;
        result.notes.push_back(std::string("nothing to do: ") + reason);
        return result;
    }
    sync();
    result.notes.push_back("settings pushed to " + std::to_string(now.satellites) +
                           (now.satellites == 1 ? " satellite" : " satellites"));
    return result;
}

Run define(CLI::App & /*command*/) {
    return run;
}

} // namespace

const Noun kSyncVerb = {"sync", "Have the satellites take over this gateway's settings", "-g mesh", define};

} // namespace cli::mesh
