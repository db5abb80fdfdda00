// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/lacking.h"
#include "pages/network/current.h"
#include "pages/network/pages.h"

namespace pages {
namespace {

constexpr int32_t kUnknown = -1; // of nEnabled

Value kindOf(int32_t type) {
    switch (type) {
    case kUntouched:
        return {};
    case CALTOFAL_WAN_ETHERNET:
        return "ethernet";
    case CALTOFAL_WAN_TETHERED:
        return "tethered";
    default:
        return "other";
    }
}

Value sharingOf(int32_t failOver) {
    if (failOver == kUntouched) {
        return {};
    }
    return failOver != 0 ? "fail-over" : "load balancing";
}

// The library takes a connection whose mode it cannot look up for one of another kind.
std::vector<Field> connection(const char (&interface)[128], int32_t type, const Lacking &lacking) {
    const bool isOther = text(interface).starts_with("w901") || !lacking.has(kWanConnections);
    return {
        {"interface", "Interface", text(interface)},
        {"kind", "Kind", kindOf(type == CALTOFAL_WAN_OTHER && !isOther ? kUntouched : type)},
    };
}

} // namespace

Page multiWan() {
    ZintuMultiWanInfo info{};
    untouch(info.nFailOver, info.nWan1Type, info.nWan2Type);
    Lacking lacking;
    lacking.ask([&] { return ZintuGet_MultiWanInfo(&info); }, {"no multi-WAN"});
    Page page{{
        {"",
         "",
         {
             {"enabled", "Enabled", info.nEnabled == kUnknown ? Value() : flag(info.nEnabled)},
             {"sharing", "Sharing", sharingOf(info.nFailOver)},
         }},
        {"wan1", "First WAN", connection(info.sWan1Interface, info.nWan1Type, lacking)},
        {"wan2", "Second WAN", connection(info.sWan2Interface, info.nWan2Type, lacking)},
    }};
    lacking.tell(page.notes);
    return page;
}

} // namespace pages
