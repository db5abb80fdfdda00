// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/failure.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/file_mark.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"
#include "pages/wifi/survey.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace pages::wifi {
namespace {

// The library cuts the request's command line at 255 characters, 209 of which are its own.
constexpr size_t kNamesMax = 255 - 209;

// Why a byte of an SSID cannot travel in JSON within single quotes of the shell; nullptr where it can.
const char *unsafe(char byte) {
    switch (byte) {
    case '\'':
        return "a single quote";
    case '"':
        return "a double quote";
    case '\\':
        return "a backslash";
    default:
        return static_cast<unsigned char>(byte) < ' ' || byte == 0x7f ? "a control character" : nullptr;
    }
}

void checkForShell(const std::string &interface, const std::string &ssid) {
    for (size_t i = 0; i < ssid.size(); ++i) {
        if (const char *what = unsafe(ssid[i])) {
            throw Usage(std::string("byte ") + std::to_string(i + 1) + " of the SSID, 0x" + hexOf({&ssid[i], 1}) +
                        ", is " + what + ": the scan request cannot carry it; scan for all networks");
        }
    }
    if (interface.size() + ssid.size() > kNamesMax) {
        throw Usage("interface and SSID have " + std::to_string(interface.size() + ssid.size()) +
                    " bytes together: the most that a scan request carries is " + std::to_string(kNamesMax));
    }
}

// Whether the radio is one of 5 GHz. One that is switched off would never bring a result.
bool is5GHz(int radio) {
    const std::string path = "Device.WiFi.Radio." + std::to_string(radio);
    const std::vector<Object> found = get({{path, {{"OperatingFrequencyBand"}, {"Enable"}}}}, Reading::Leaf);
    if (!found.empty() && flagOf(valueOf(found.front(), "Enable")) == false) {
        throw Failure(Category::Failed, "radio " + std::to_string(radio) + " is switched off: it cannot scan", path);
    }
    return !found.empty() && valueOf(found.front(), "OperatingFrequencyBand") == "5GHz";
}

// Two scans at a time would take each other's result. Kept until the object is gone; no lock where none can be had.
class ScanLock {
  public:
    explicit ScanLock(const InterfaceName &interface)
        : descriptor_(open((surveyFile(interface) + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666)) {
        if (descriptor_ >= 0 && flock(descriptor_, LOCK_EX | LOCK_NB) != 0) {
            close(descriptor_);
            throw Failure(Category::Failed, "another scan on " + interface.text() + " is under way");
        }
    }
    ScanLock(const ScanLock &) = delete;
    ScanLock &operator=(const ScanLock &) = delete;
    ~ScanLock() { close(descriptor_); }

  private:
    int descriptor_;
};

void request(const ScanRequest &wanted, Wait &wait) {
    ShellOutput output;
    const bool ran = ReqScan(wanted.interface.c_str(), wanted.ssid.c_str()) == 1;
    const std::string complaint = output.end();
    if (!wait.cancelled() && (!ran || !complaint.empty())) {
        failOfShell("the scan request failed", complaint);
    }
}

void await(Wait &wait, const Pace &pace, const InterfaceName &interface, const FileMark &before) {
    const std::string &name = interface.text();
    // Whole once it stays as it is.
    FileMark last = before;
    const auto done = [&] {
        const FileMark now(surveyFile(interface));
        return now.isNewerThan(before) && !now.isNewerThan(std::exchange(last, now));
    };
    switch (askAgain(wait, pace, "scanning on " + name, done)) {
    case Outcome::Done:
        return;
    case Outcome::Cancelled:
        throw Cancelled("interrupted: the scan on " + name + " goes on by itself");
    case Outcome::TimeOut:
        break;
    }
    throw Failure(Category::TimeOut, "the scan on " + name + " brought no result: is its radio on?");
}

} // namespace

ScanRequest checkedScan(const std::string &interface, const std::string &ssid) {
    ScanRequest request{InterfaceName(interface), checkedSsid(ssid)};
    checkForShell(interface, ssid);
    return request;
}

Report scan(const ScanRequest &wanted, Wait &wait) {
    const bool upper = is5GHz(findInterface(wanted.interface).radio);
    const ScanLock lock(wanted.interface);
    const FileMark before(surveyFile(wanted.interface));
    wait.begin();
    request(wanted, wait);
    await(wait, {upper ? SCAN_5G_RetryTime : SCAN_24G_RetryTime, wanted.unit}, wanted.interface, before);
    const DeviceTurn turn;
    return surveyReport(surveyFile(wanted.interface), wanted.ssid);
}

} // namespace pages::wifi
