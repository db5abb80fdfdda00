// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/lacking.h"
#include "pages/layer/left_messages.h"
#include "pages/network/current.h"
#include "pages/network/pages.h"

#include <charconv>

namespace pages {
namespace {

constexpr std::string_view kInterfaces = "Device.IP.Interface.";

int32_t indexOf(std::string_view interface) {
    int32_t index = 0;
    if (interface.starts_with(kInterfaces)) {
        std::from_chars(interface.data() + kInterfaces.size(), interface.data() + interface.size(), index);
    }
    return index;
}

} // namespace

Page ipv6() {
    ZintuWanInfo info{};
    info.bIpv6Enable = kUntouchedFlag;
    const std::string interface = gatewayInterface();
    interface.copy(info.sWanIpInterface, sizeof(info.sWanIpInterface) - 1);
    info.nWanIpIfIndex = indexOf(interface);
    const LeftMessages left;
    Lacking lacking;
    lacking.ask([&] { return ZintuGet_WanIPv6(&info); }, {"no IPv6 forwarding", {"Device.Routing."}});
    const int delegation = lacking.ask(ZintuGet_IPv6PD, {"no prefix delegation"});
    Page page = pageOf({
        {"interface", "Interface", interface},
        {"enabled", "Enabled", flag(info.bIpv6Enable)},
        {"type", "Type", text(info.sIpv6Type)},
        {"address", "Address", text(info.sIpv6Address)},
        {"next_hop", "Next hop", text(info.sIpv6NextHop)},
        {"prefix_delegation", "Prefix delegation", flag(delegation)},
    });
    tellFinalDot(interface, lacking, page.notes);
    lacking.tell(page.notes);
    return page;
}

} // namespace pages
