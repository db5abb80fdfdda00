// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

namespace cli {

std::span<const Noun *const> nouns() {
    static constexpr const Noun *kNouns[] = {
        &kStatusNoun, &kModeNoun, &kGatewayNoun,  &kWanNoun,  &kDnsNoun,  &kIpv6Noun,        &kDslNoun,
        &kAtmNoun,    &kLanNoun,  &kMultiWanNoun, &kIptvNoun, &kHostNoun, &kLowerLayersNoun, &kAddressNoun,
        &kGetNoun,    &kSetNoun,  &kAddNoun,      &kDelNoun,  &kFindNoun, &kWifiNoun,        &kMeshNoun,
    };
    return kNouns;
}

} // namespace cli
