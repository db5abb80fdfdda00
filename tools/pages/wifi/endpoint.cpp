// SPDX-License-Identifier: MIT
#include "caltofal.h"
#include "pages/layer/lacking.h"
#include "pages/layer/partial_answer.h"
#include "pages/layer/request_log.h"
#include "pages/page.h"
#include "pages/process/shell_output.h"
#include "pages/wifi/interface.h"
#include "pages/wifi/pages.h"

#include <filesystem>
#include <vector>

namespace pages::wifi {
namespace {

constexpr size_t kTextSize = 128;
constexpr int kNoneEnabled = -1;
constexpr size_t kFiguresLeast = 4096;

struct Link {
    bool connected = false;
    char peer[kTextSize] = "";
    Value width, channel;
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
        link.channel = figures[1] == 0 ? Value() : Value(figures[1]);
    }
}

Page pageOf(const Value &number, const std::string &interface, const Link &link, const std::string &complaint) {
    if (!link.connected && link.channel.isNull() && !complaint.empty()) {
        failOfShell("the driver tells nothing of " + interface, complaint);
    }
    Page page = pages::pageOf({
        {"endpoint", "End point", number},
        {"interface", "Interface", interface},
        {"connected", "Connected", link.connected},
        {"peer", "Peer", text(link.peer)},
        {"bandwidth_mhz", "Bandwidth", link.width, "MHz"},
        {"channel", "Channel", link.channel},
    });
    if (!complaint.empty()) {
        page.notes.push_back(complaint);
    }
    return page;
}

void checkUplink(const Interface &interface) {
    for (const Object &endPoint : get({{"Device.WiFi.EndPoint", {{"SSIDReference"}}}}, Reading::Whole)) {
        if (withoutDot(valueOf(endPoint, "SSIDReference")) == interface.ssidObject) {
            return;
        }
    }
    throw Failure(Category::Absent, interface.name + " is not an end point", "Device.WiFi.EndPoint");
}

// The enabled end point, with its interface's name where its reference leads to one. An empty reference is asked for
// like any other; a layer that refuses that has said no more than that there is no name.
int enabledEndPoint(char *interface, std::vector<std::string> &notes) {
    int number = kNoneEnabled;
    const RequestLog log;
    Lacking lacking;
    try {
        lacking.ask(strictly([&] { return (number = std::max(GetEPEnable(interface), kNoneEnabled)) + 1; }),
                    {"the library failed"});
    } catch (const Failure &) {
        if (log.requests().empty() || !log.requests().back().objects.front().empty()) {
            throw;
        }
    }
    for (const char *object : {"Device.WiFi.EndPoint.1", "Device.WiFi.EndPoint.2", ""}) {
        lacking.needNot(object); // one of the two is enough
    }
    lacking.tell(notes);
    return number;
}

} // namespace

Report endPoint() {
    char interface[kTextSize] = "";
    std::vector<std::string> lacking;
    const int number = enabledEndPoint(interface, lacking);
    if (number == kNoneEnabled) {
        throw Failure(Category::Absent, "no end point is enabled", "Device.WiFi.EndPoint");
    }
    const std::string name = text(interface);
    if (name.empty()) {
        const std::string reason = lacking.empty() ? "" : "; " + lacking.front();
        throw Failure(Category::Absent, "end point " + std::to_string(number) + " names no interface" + reason,
                      "Device.WiFi.EndPoint." + std::to_string(number));
    }
    const InterfaceName checked(name); // it is the store's, and goes to the shell
    Link link;
    const DeviceTurn turn;
    ShellOutput output;
    const PartialAnswers partial;
    link.connected = GetEPConnectionStatus(link.peer) == 1;
    readChannel(name, link);
    return pageOf(number, name, link, output.end());
}

Report endPoint(const InterfaceName &interface) {
    checkUplink(findInterface(interface));
    Link link;
    const DeviceTurn turn;
    ShellOutput output;
    link.connected = GetEPContection(interface.c_str(), link.peer) == 1;
    readChannel(interface.text(), link);
    return pageOf({}, interface.text(), link, output.end());
}

} // namespace pages::wifi
