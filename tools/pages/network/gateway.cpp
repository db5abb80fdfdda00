// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/layer/query.h"
#include "pages/network/current.h"
#include "pages/network/pages.h"

#include <algorithm>

namespace pages {
namespace {

constexpr size_t kSectionSize = 128;

ZintuWanInfo defaultGateway() {
    ZintuWanInfo info{};
    ask([&] { return ZintuGet_DefGw(&info); }, {kNoDefaultWan});
    if (info.sWanIpInterface[0] == '\0') {
        throw Failure(Category::Absent, kNoDefaultWan);
    }
    return info;
}

// Null where the interface has no section of its own; that is no failure of this page.
Value sectionOfDefaultGateway(std::vector<std::string> &notes) {
    char section[kSectionSize] = "";
    try {
        ask([&] { return ZintuGet_UciSectionOfDefGw(section); }, {"no UCI section carries the default route"});
        return text(section);
    } catch (const Failure &failure) {
        if (failure.category() != Category::Absent) {
            throw;
        }
        notes.emplace_back(failure.what());
        return {};
    }
}

std::vector<std::string> modeWords() {
    std::vector<std::string> result;
    for (const Object &connection : get({{kWanConnections, {{"ConnMode"}}}}, Reading::Whole)) {
        const std::string mode = valueOf(connection, "ConnMode");
        if (!mode.empty() && std::find(result.begin(), result.end(), mode) == result.end()) {
            result.push_back(mode);
        }
    }
    return result;
}

} // namespace

Report connectionModes() {
    Report result{.json = Value::object({{"modes", Value::list()}})};
    for (const std::string &mode : modeWords()) {
        result.json["modes"].push(mode);
        result.raw += mode + "\n";
    }
    return result;
}

Report uciSectionOfMode(const std::string &mode) {
    const std::vector<std::string> known = modeWords();
    if (std::find(known.begin(), known.end(), mode) == known.end()) {
        throw Failure(Category::Absent,
                      "no WAN connection has the mode " + inQuotes(mode) + "; there are " + joined(known),
                      kWanConnections);
    }
    char section[kSectionSize] = "";
    ask([&] { return ZintuGet_UciSectionByConnMode(mode.c_str(), section); },
        {"no WAN connection of mode \"" + mode + "\" has a UCI section"});
    return single("uci_section", text(section));
}

Failure noSuchInterface(const std::string &interface) {
    return {Category::Absent,
            "Device.X_ZINTU_CurrentNetwork: WanIpInterface is " + interface + ", which does not exist", interface,
            CALTOFAL_ABSENT_OBJECT};
}

void tellFinalDot(const std::string &interface, Lacking &lacking, std::vector<std::string> &notes) {
    if (interface.ends_with('.') && lacking.needNotBelow(interface + ".")) {
        notes.push_back("Device.X_ZINTU_CurrentNetwork: WanIpInterface ends with a dot (" + interface +
                        "): the library finds nothing below that interface then; what it tells is missing here");
    }
}

std::string gatewayInterface() {
    std::string interface = text(defaultGateway().sWanIpInterface);
    try {
        get({{interface, {{"Enable"}}}}, Reading::Leaf); // the library's functions do not say that it is not there
    } catch (const Failure &failure) {
        if (failure.code() == CALTOFAL_ABSENT_OBJECT) {
            throw noSuchInterface(interface);
        }
        throw;
    }
    return interface;
}

Page gateway() {
    const ZintuWanInfo info = defaultGateway();
    std::vector<std::string> notes;
    Page page = pageOf({
        {"interface", "Interface", text(info.sWanIpInterface)},
        {"type", "Type", text(info.sWanIpType)},
        {"link_type", "Link type", text(info.sWanLinkType)},
        {"ipv4_mode", "IPv4 mode", text(info.sIpv4Mode)},
        {"ppp_static_address", "PPP static address", text(info.sPppStaticAddress)},
        {"dns1", "DNS server 1", server(text(info.sDNS1), notes)},
        {"dns2", "DNS server 2", server(text(info.sDNS2), notes)},
        {"uci_section", "UCI section", sectionOfDefaultGateway(notes)},
    });
    page.notes = notes;
    return page;
}

} // namespace pages
