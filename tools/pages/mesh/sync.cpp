// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/failure.h"
#include "pages/mesh/pages.h"
#include "pages/mesh/state.h"
#include "pages/process/shell_output.h"

#include <csignal>
#include <future>
#include <thread>

namespace pages::mesh {
namespace {

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

std::string tellSatellites() {
    ShellOutput output;
    ZINTU_meshgrove_sync_to_slave();
    return output.end();
}

// The library waits some seconds after it told the daemon: on a thread of its own, which takes no signals and which
// who cancels the wait leaves behind. What comes is the tools' complaint.
std::future<std::string> startSync() {
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    std::promise<std::string> promise;
    std::future<std::string> complaint = promise.get_future();
    std::thread([promise = std::move(promise)]() mutable { promise.set_value(tellSatellites()); }).detach();
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
    return complaint;
}

void push(Wait &wait) {
    wait.begin();
    std::future<std::string> complaint = startSync();
    const auto ended = [&] { return complaint.wait_for(std::chrono::seconds(0)) == std::future_status::ready; };
    if (!waitFor(wait, "the satellites take the settings", ended)) {
        throw Cancelled("interrupted: the satellites take the settings all the same");
    }
    if (const std::string words = complaint.get(); !words.empty()) {
        failOfShell("the satellites were not told", words);
    }
}

} // namespace

Report sync(Wait &wait) {
    const State now = state();
    const char *reason = obstacle(now);
    Report result{.json = Value::object({{"synced", reason == nullptr}, {"satellites", now.satellites}})};
    if (reason) {
        result.json["reason"] = reason;
        result.notes.push_back(std::string("nothing to do: ") + reason);
        return result;
    }
    push(wait);
    result.notes.push_back("settings pushed to " + std::to_string(now.satellites) +
                           (now.satellites == 1 ? " satellite" : " satellites"));
    return result;
}

} // namespace pages::mesh
