// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"
#include "pages/objects/words.h"

#include <memory>

namespace cli {
namespace {

constexpr size_t kSectionSize = 128;

ZintuWanInfo defaultGateway() {
    ZintuWanInfo info{};
    ask([&] { return ZintuGet_DefGw(&info); }, {kNoDefaultWan});
    if (info.sWanIpInterface[0] == '\0') {
        throw Failure(Exit::Absent, kNoDefaultWan);
    }
    return info;
}

// Null where the interface has no section of its own; that is no failure of this page.
Json sectionOfDefaultGateway(std::vector<std::string> &notes) {
    char section[kSectionSize] = "";
    try {
        ask([&] { return ZintuGet_UciSectionOfDefGw(section); }, {"no UCI section carries the default route"});
        return text(section);
    } catch (const Failure &failure) {
        if (failure.exit() != Exit::Absent) {
            throw;
        }
        notes.emplace_back(failure.what());
        return {};
    }
}

Report sectionOfMode(const std::string &mode) {
    char section[kSectionSize] = "";
    ask([&] { return ZintuGet_UciSectionByConnMode(mode.c_str(), section); },
        {"no WAN connection of mode \"" + mode + "\" has a UCI section"});
    Report result;
    put(result.json, "uci_section", text(section));
    result.raw = text(section) + "\n";
    return result;
}

Run define(CLI::App &command) {
    const auto mode = std::make_shared<std::string>();
    addOption(command, "--mode-section", *mode, "WORD", "Only the UCI section of the WAN connection of that mode");
    return [mode] { return mode->empty() ? report(gatewayPage()) : sectionOfMode(*mode); };
}

} // namespace

std::string gatewayInterface() {
    return text(defaultGateway().sWanIpInterface);
}

Page gatewayPage() {
    const ZintuWanInfo info = defaultGateway();
    Page page;
    page.sections = {{"",
                      "",
                      {
                          {"interface", "Interface", text(info.sWanIpInterface), {}},
                          {"type", "Type", text(info.sWanIpType), {}},
                          {"link_type", "Link type", text(info.sWanLinkType), {}},
                          {"ipv4_mode", "IPv4 mode", text(info.sIpv4Mode), {}},
                          {"ppp_static_address", "PPP static address", text(info.sPppStaticAddress), {}},
                          {"dns1", "DNS server 1", text(info.sDNS1), {}},
                          {"dns2", "DNS server 2", text(info.sDNS2), {}},
                          {"uci_section", "UCI section", sectionOfDefaultGateway(page.notes), {}},
                      }}};
    return page;
}

const Noun kGatewayNoun = {"gateway", "The WAN connection that carries the default route", "\n--mode-section VDSL_PTM",
                           define};

} // namespace cli
