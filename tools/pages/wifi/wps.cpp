// SPDX-License-Identifier: MIT
#include "pages/wifi/pages.h"

#include "caltofal.h"
#include "caltofal/command.h"
#include "caltofal/device.h"
#include "pages/failure.h"
#include "pages/objects/words.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/pace.h"

#include <fstream>
#include <memory>

namespace cli::wifi {
namespace {

// Where the service daemon tells how a run goes.
constexpr const char *kStatusFile = "/tmp/wlan_wave/wps_status";

constexpr const char *kRunning = "InProgress";

std::string status() {
    std::string word;
    std::ifstream(kStatusFile) >> word;
    return word;
}

void request(int (*call)()) {
    ShellOutput output;
    const bool ran = call() == 1;
    const std::string complaint = output.end();
    if (Interruptible::signal() == 0 && (!ran || !complaint.empty())) {
        failOfShell("the WPS request failed", complaint);
    }
}

Report reportOf(const std::string &state) {
    return {{{"wps", state.empty() ? Json() : Json(state)}}, {}, (state.empty() ? "-" : state) + "\n", {}};
}

void cancelQuietly() {
    const ShellOutput output;
    ReqWPSCancel();
}

Report start(const std::string &pace) {
    const Pace wait = paceOf(WPS_RetryTime, pace);
    needDevice();
    const Interruptible interruptible;
    request(ReqWPSActive);
    const auto ended = [] { return status() != kRunning; };
    switch (askAgain(wait, "WPS: press the button of the other device", ended)) {
    case Outcome::Signal:
        cancelQuietly();
        throw Interrupted(Interruptible::signal(), "interrupted: WPS cancelled");
    case Outcome::TimeOut:
        throw Failure(Exit::TimeOut, "WPS: still in progress; caltofal wifi wps cancel ends it");
    case Outcome::Done:
        break;
    }
    const std::string state = status();
    if (state == "Timeout") {
        throw Failure(Exit::TimeOut, "WPS: timed out, no device has joined: was its button pressed?");
    }
    if (state != "Success" && !state.empty()) {
        throw Failure(Exit::Failed, "WPS: the service daemon reports \"" + state + "\"");
    }
    Report result = reportOf(state);
    if (state.empty()) {
        result.notes.push_back(std::string("WPS: requested; how it ends is not known, as ") + kStatusFile +
                               " is missing or empty");
    }
    return result;
}

template <int (*call)()>
Run defineRequest(CLI::App & /*command*/) {
    return [] {
        needDevice();
        const bool running = status() == kRunning;
        request(call);
        Report result = reportOf(status());
        if (call == ReqWPSCancel && !running) {
            result.notes.emplace_back("WPS: nothing was in progress, so the state is unchanged");
        }
        return result;
    };
}

Run defineStart(CLI::App &command) {
    const auto pace = std::make_shared<std::string>();
    addPace(command, *pace);
    return [pace] { return start(*pace); };
}

constexpr Noun kStart = {"start", "Press the button, and wait until a device has joined", "--pace 200", defineStart};
constexpr Noun kCancel = {"cancel", "End a run", "", defineRequest<ReqWPSCancel>};
constexpr Noun kReset = {"reset", "Forget what WPS has configured", "", defineRequest<ReqWPSReset>};

Run define(CLI::App &command) {
    static constexpr const Noun *kVerbs[] = {&kStart, &kCancel, &kReset};
    return defineVerbs(command, "caltofal wifi wps", kVerbs);
}

} // namespace

const Noun kWpsVerb = {"wps", "WPS by push-button", "start --pace 200", define};

} // namespace cli::wifi
