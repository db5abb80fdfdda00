// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/failure.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/file_mark.h"
#include "pages/wifi/pages.h"

#include <chrono>
#include <fstream>
#include <functional>

namespace pages::wifi {
namespace {

// Where the service daemon tells how a run goes.
constexpr const char *kStatusFile = "/tmp/wlan_wave/wps_status";

constexpr const char *kRunning = "InProgress";

std::string status() {
    std::string word;
    std::ifstream(kStatusFile) >> word;
    return word;
}

// Throws what goes wrong, unless `isIgnored` says afterwards that it does not matter.
void request(int (*call)(), const std::function<bool()> &isIgnored) {
    ShellOutput output;
    const bool ran = call() == 1;
    const std::string complaint = output.end();
    if (!isIgnored() && (!ran || !complaint.empty())) {
        failOfShell("the WPS request failed", complaint);
    }
}

bool never() {
    return false;
}

bool always() {
    return true;
}

Report reportOf(const std::string &state) {
    return {.json = Value::object({{"wps", state.empty() ? Value() : Value(state)}}), .raw = readable(state) + "\n"};
}

// How a run ended that the service daemon no longer reports as in progress.
Report ended() {
    const std::string state = status();
    if (state == "Timeout") {
        throw Failure(Category::TimeOut, "WPS: timed out, no device has joined: was its button pressed?");
    }
    if (state != "Success" && !state.empty()) {
        throw Failure(Category::Failed, "WPS: the service daemon reports \"" + state + "\"");
    }
    Report result = reportOf(state);
    if (state.empty()) {
        result.notes.push_back(std::string("WPS: requested; how it ends is not known, as ") + kStatusFile +
                               " is missing or empty");
    }
    return result;
}

} // namespace

Report startWps(std::chrono::milliseconds unit, Wait &wait) {
    wait.begin();
    const FileMark before(kStatusFile);
    request(ReqWPSActive, [&] { return wait.cancelled(); });
    const auto start = std::chrono::steady_clock::now();
    // Until the daemon has taken the request up, its file tells how the run before ended.
    const auto isOver = [&] {
        const bool isFresh = FileMark(kStatusFile).isNewerThan(before) ||
                             std::chrono::steady_clock::now() - start >= WPS_RetryTime[0] * unit;
        return !wait.cancelled() && isFresh && status() != kRunning;
    };
    switch (askAgain(wait, {WPS_RetryTime, unit}, "WPS: press the button of the other device", isOver)) {
    case Outcome::Cancelled:
        request(ReqWPSCancel, always);
        throw Cancelled("interrupted: WPS cancelled");
    case Outcome::TimeOut:
        throw Failure(Category::TimeOut, "WPS: still in progress; caltofal wifi wps cancel ends it");
    case Outcome::Done:
        break;
    }
    return ended();
}

Report cancelWps() {
    const bool running = status() == kRunning;
    request(ReqWPSCancel, never);
    Report result = reportOf(status());
    if (!running) {
        result.notes.emplace_back("WPS: nothing was in progress, so the state is unchanged");
    }
    return result;
}

Report resetWps() {
    request(ReqWPSReset, never);
    return reportOf(status());
}

} // namespace pages::wifi
