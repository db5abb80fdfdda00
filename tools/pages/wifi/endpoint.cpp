// SPDX-License-Identifier: MIT
#include "pages/wifi/pages.h"

#include "caltofal.h"
#include "caltofal/device.h"
#include "pages/layer/call.h"
#include "pages/objects/words.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/interface.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace cli::wifi {
namespace {

constexpr size_t kTextSize = 128;
constexpr int kNoneEnabled = -1;
constexpr size_t kFiguresLeast = 4096;

struct Link { // NOLINT(bugprone-exception-escape): the JSON library checks itself when moving
    bool connected = false;
    char peer[kTextSize] = "";
    Json width, channel;
};

// The library stores as many figures as it finds in the driver's file: never more than the file has bytes.
std::vector<int32_t> roomForFigures(const std::string &interface) {
    std::error_code absent;
    const auto size = std::filesystem::file_size("/proc/net/mtlk/" + interface + "/channel", absent);
    return std::vector<int32_t>(kFiguresLeast + (absent ? 0 : 2 * size));
}

// The driver tells the width first.
void readChannel(const std::string &interface, Link &link) {
    std::vector<int32_t> figures = roomForFigures(interface);
    if (ReqEPChannelInfo(interface.c_str(), figures.data()) == 1) {
        link.width = figures[0];
        link.channel = figures[1] == 0 ? Json() : Json(figures[1]);
    }
}

Report reportOf(const Json &number, const std::string &interface, const Link &link, const std::string &complaint) {
    if (!link.connected && link.channel.is_null() && !complaint.empty()) {
        failOfShell("the driver tells nothing of " + interface, complaint);
    }
    Page page{{{"",
                "",
                {
                    {"endpoint", "End point", number, {}},
                    {"interface", "Interface", interface, {}},
                    {"connected", "Connected", link.connected, {}},
                    {"peer", "Peer", text(link.peer), {}},
                    {"bandwidth_mhz", "Bandwidth", link.width, "MHz"},
                    {"channel", "Channel", link.channel, {}},
                }}},
              {}};
    if (!complaint.empty()) {
        page.notes.push_back(complaint);
    }
    return report(page);
}

Report enabledEndPoint() {
    char interface[kTextSize] = "";
    const int number = askEvery([&] { return std::max(GetEPEnable(interface), kNoneEnabled) + 1; }) - 1;
    if (number == kNoneEnabled) {
        throw Failure(Exit::Absent, "no end point is enabled", "Device.WiFi.EndPoint");
    }
    const std::string name = text(interface);
    if (name.empty()) {
        throw Failure(Exit::Absent, "end point " + std::to_string(number) + " names no interface",
                      "Device.WiFi.EndPoint." + std::to_string(number));
    }
    checkedInterface(name); // it is the store's, and goes to the shell
    Link link;
    ShellOutput output;
    link.connected = GetEPConnectionStatus(link.peer) == 1;
    readChannel(name, link);
    return reportOf(number, name, link, output.end());
}

void checkUplink(const Interface &interface) {
    for (const Object &endPoint : get({{"Device.WiFi.EndPoint", {{"SSIDReference", {}}}}}, Reading::Whole)) {
        const std::string reference = valueOf(endPoint, "SSIDReference");
        if (reference.substr(0, reference.find_last_not_of('.') + 1) == interface.ssidObject) {
            return;
        }
    }
    throw Failure(Exit::Absent, interface.name + " is no end point", "Device.WiFi.EndPoint");
}

Report run(const std::string &name) {
    if (name.empty()) {
        needDevice();
        return enabledEndPoint();
    }
    checkedInterface(name);
    needDevice();
    checkUplink(findInterface(name));
    Link link;
    ShellOutput output;
    link.connected = GetEPContection(name.c_str(), link.peer) == 1;
    readChannel(name, link);
    return reportOf({}, name, link, output.end());
}

Run define(CLI::App &command) {
    const auto name = std::make_shared<std::string>();
    addOptionalArgument(command, "INTERFACE", *name, "That interface; otherwise the enabled end point's");
    return [name] { return run(*name); };
}

} // namespace

const Noun kEndpointVerb = {"endpoint", "A repeater's uplink", "wlan1", define};

} // namespace cli::wifi
