// SPDX-License-Identifier: MIT

#include "caltofal.h"
#include "pages/layer/call.h"
#include "pages/network/pages.h"

namespace pages {
namespace {

constexpr int32_t kUnknown = -1; // of nEnabled

Value kindOf(int32_t type) {
    switch (type) {
    case kUntouched:
        return {};
    case 0:
        return "ethernet";
    case 2:
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

std::vector<Field> connection(const char (&interface)[128], int32_t type) {
    return {
        {"interface", "Interface", text(interface)},
        {"kind", "Kind", kindOf(type)},
    };
}

} // namespace

Page multiWan() {
    ZintuMultiWanInfo info{};
    untouch(info.nFailOver, info.nWan1Type, info.nWan2Type);
    ask([&] { return ZintuGet_MultiWanInfo(&info); }, {"no multi-WAN"});
    return {{
        {"",
         "",
         {
             {"enabled", "Enabled", info.nEnabled == kUnknown ? Value() : flag(info.nEnabled)},
             {"sharing", "Sharing", sharingOf(info.nFailOver)},
         }},
        {"wan1", "First WAN", connection(info.sWan1Interface, info.nWan1Type)},
        {"wan2", "Second WAN", connection(info.sWan2Interface, info.nWan2Type)},
    }};
}

} // namespace pages
