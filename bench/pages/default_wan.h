// SPDX-License-Identifier: MIT
// What the two halves of the default WAN page by hand share.
#pragma once

#include "by_hand.h"

namespace default_wan {

// What several steps of one call need.
struct Call {
    ZintuWanInfo *info;
    size_t length;
    char interface[257]; // sWanIpInterface, terminated
    char dotted[258];    // with a final dot
    size_t dottedLength;
    char vlan[256];
};

// Decides whether the DNS servers are automatic, and fills them where the record has none.
void decideDns(Call &call);

} // namespace default_wan
