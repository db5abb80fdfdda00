// SPDX-License-Identifier: MIT
#include "pages/wifi/survey.h"

#include "caltofal.h"
#include "pages/failure.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/instances.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"
#include "pages/wifi/radar.h"
#include "pages/wifi/signal.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <span>
#include <unistd.h>

namespace pages::wifi {
namespace {

constexpr const char *kCombinedFile = "/tmp/wlan_wave/caltofal_scan.XXXXXX";

struct Survey {
    SiteSurveyList list{};
    Survey() = default;
    Survey(const Survey &) = delete;
    Survey &operator=(const Survey &) = delete;
    ~Survey() { free(list.entries); } // NOLINT(cppcoreguidelines-no-malloc): the library allocates it so
};

// Several interfaces' results in one file, as long as it is needed.
class CombinedFile {
  public:
    CombinedFile() : path_(kCombinedFile) {
        const int descriptor = mkstemp(path_.data());
        if (descriptor < 0) {
            throw Failure(Category::Failed, path_ + " cannot be made");
        }
        close(descriptor);
    }
    CombinedFile(const CombinedFile &) = delete;
    CombinedFile &operator=(const CombinedFile &) = delete;
    ~CombinedFile() { unlink(path_.c_str()); }

    [[nodiscard]] const std::string &path() const { return path_; }

  private:
    std::string path_;
};

Value jsonOf(const SiteSurveyEntry &entry) {
    Value json = Value::object();
    json["ssid"] = text(entry.ssid);
    json["channel"] = entry.channel;
    json["dfs"] = isRadarChannel(entry.channel);
    json["rssi_dbm"] = entry.rssi;
    json["security"] = text(entry.security);
    json["encryption"] = text(entry.encryption);
    json["bssid"] = text(entry.macaddr);
    json["bandwidth_mhz"] = entry.bandwidth;
    json["standards"] = text(entry.phymode);
    json["secondary_side"] = text(entry.sideband);
    json["product"] = entry.product;
    return json;
}

Row rowOf(const SiteSurveyEntry &entry) {
    return {{text(entry.ssid)},
            markedChannel(entry.channel),
            signalCell(entry.rssi),
            {text(entry.security)},
            {text(entry.encryption)},
            {text(entry.macaddr)},
            {std::to_string(entry.bandwidth)},
            {text(entry.phymode)},
            {text(entry.sideband)},
            cellOf(isRadarChannel(entry.channel))};
}

bool exists(const std::string &file) {
    return access(file.c_str(), F_OK) == 0;
}

// What the device box says of a result, in a word beside it.
bool isMadeUp(const std::string &resultFile) {
    std::string word;
    std::ifstream(resultFile.substr(0, resultFile.rfind('.')) + ".source") >> word;
    return word == "made-up";
}

constexpr const char *kMadeUp = "the sandbox made these networks up";

Report surveyOfAll(const std::string &ssid) {
    const std::vector<InterfaceName> names = interfacesWithResult();
    if (names.empty()) {
        throw Failure(Category::Absent, "no interface has a result; caltofal wifi scan INTERFACE makes one");
    }
    if (names.size() == 1) {
        return surveyReport(surveyFile(names[0]), ssid);
    }
    // What was joined so far and what one more makes of it, in turn.
    const CombinedFile files[2];
    std::string all = surveyFile(names[0]);
    ShellOutput output;
    for (size_t i = 1; i < names.size(); ++i) {
        const std::string &target = files[i % 2].path();
        CombineScanResultFiles(all.c_str(), surveyFile(names[i]).c_str(), target.c_str());
        all = target;
    }
    if (const std::string complaint = output.end(); !complaint.empty()) {
        failOfShell("the results cannot be joined", complaint);
    }
    Report result = surveyReport(all, ssid);
    if (std::any_of(names.begin(), names.end(), [](const auto &name) { return isMadeUp(surveyFile(name)); })) {
        result.notes.emplace_back(kMadeUp);
    }
    return result;
}

} // namespace

std::string surveyFile(const InterfaceName &interface) {
    return "/tmp/wlan_wave/" + interface.text() + "_scan_by_User.result";
}

std::vector<InterfaceName> interfacesWithResult() {
    std::vector<InterfaceName> names;
    for (const Object &ssid : instancesOf("Device.WiFi.SSID", {{"Name"}})) {
        const std::string name = valueOf(ssid, "Name");
        if (!name.empty() && exists(surveyFile(InterfaceName(name)))) {
            names.emplace_back(name);
        }
    }
    return names;
}

Report survey(const std::optional<InterfaceName> &interface, const std::string &ssid) {
    const DeviceTurn turn;
    if (!interface) {
        return surveyOfAll(ssid);
    }
    findInterface(*interface);
    if (!exists(surveyFile(*interface))) {
        throw Failure(Category::Absent,
                      interface->text() + " has no result; caltofal wifi scan " + interface->text() + " makes one");
    }
    return surveyReport(surveyFile(*interface), ssid);
}

Report surveyReport(const std::string &file, const std::string &ssid) {
    Survey survey;
    const int count = GetSiteSurveyList(file.c_str(), &survey.list, ssid.c_str());
    Report result{.json = Value::object({{"networks", Value::list()}})};
    result.table.headings = {"SSID",  "CHANNEL",   "SIGNAL DBM", "SECURITY", "ENCRYPTION",
                             "BSSID", "WIDTH MHZ", "STANDARDS",  "2ND"};
    result.table.furtherHeadings = {"DFS"};
    result.table.leastNeeded = {"2ND", "STANDARDS", "ENCRYPTION", "WIDTH MHZ", "BSSID"};
    const std::span entries(survey.list.entries, static_cast<size_t>(count));
    for (const SiteSurveyEntry &entry : entries) {
        result.json["networks"].push(jsonOf(entry));
    }
    std::stable_sort(entries.begin(), entries.end(), [](const auto &a, const auto &b) { return a.rssi > b.rssi; });
    for (const SiteSurveyEntry &entry : entries) {
        result.table.rows.push_back(rowOf(entry));
    }
    const int lost = ssid.empty() ? GetFileLineCnt(file.c_str()) - count : 0;
    if (count == 0) {
        if (!ssid.empty()) {
            throw Failure(Category::Absent, "the network \"" + ssid + "\" was not found");
        }
        result.notes.emplace_back("no networks found");
    }
    if (count > 0 && isMadeUp(file)) {
        result.notes.emplace_back(kMadeUp);
    }
    if (lost > 0) {
        result.notes.push_back(std::to_string(lost) + (lost == 1 ? " line" : " lines") +
                               " of the result left out: hidden networks, or damaged");
    }
    return result;
}

} // namespace pages::wifi
