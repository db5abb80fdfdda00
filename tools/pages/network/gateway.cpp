// SPDX-License-Identifier: MIT

#include "pages/network/pages.h"

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/current.h"

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

} // namespace

Report uciSectionOfMode(const std::string &mode) {
    char section[kSectionSize] = "";
    ask([&] { return ZintuGet_UciSectionByConnMode(mode.c_str(), section); },
        {"no WAN connection of mode \"" + mode + "\" has a UCI section"});
    return single("uci_section", text(section));
}

std::string gatewayInterface() {
    return text(defaultGateway().sWanIpInterface);
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
        {"dns1", "DNS server 1", text(info.sDNS1)},
        {"dns2", "DNS server 2", text(info.sDNS2)},
        {"uci_section", "UCI section", sectionOfDefaultGateway(notes)},
    });
    page.notes = notes;
    return page;
}

} // namespace pages
