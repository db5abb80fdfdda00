// SPDX-License-Identifier: MIT
// All nouns; each is defined in the file of its name, or in a directory of that name.
#pragma once

#include "caltofal/noun.h"

namespace cli {

extern const Noun kModeNoun;
extern const Noun kGatewayNoun;
extern const Noun kGetNoun;
extern const Noun kSetNoun;
extern const Noun kAddNoun;
extern const Noun kDelNoun;
extern const Noun kFindNoun;
extern const Noun kStatusNoun;
extern const Noun kWanNoun;
extern const Noun kDnsNoun;
extern const Noun kIpv6Noun;
extern const Noun kDslNoun;
extern const Noun kAtmNoun;
extern const Noun kLanNoun;
extern const Noun kMultiWanNoun;
extern const Noun kIptvNoun;
extern const Noun kHostNoun;
extern const Noun kLowerLayersNoun;
extern const Noun kAddressNoun;
extern const Noun kWifiNoun;
extern const Noun kMeshNoun;

} // namespace cli
