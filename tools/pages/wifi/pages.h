// SPDX-License-Identifier: MIT
// The verbs of `wifi`; each is defined in the file of its name.
#pragma once

#include "caltofal/noun.h"

namespace cli::wifi {

extern const Noun kRadiosVerb;
extern const Noun kRadioVerb;
extern const Noun kSsidsVerb;
extern const Noun kSsidVerb;
extern const Noun kSetVerb;
extern const Noun kChannelsVerb;
extern const Noun kChannelVerb;
extern const Noun kStationsVerb;
extern const Noun kClientsVerb;
extern const Noun kAclVerb;
extern const Noun kScanVerb;
extern const Noun kSurveyVerb;
extern const Noun kWpsVerb;
extern const Noun kEndpointVerb;
extern const Noun kConvertVerb;
extern const Noun kEscapeVerb;
extern const Noun kHexVerb;
extern const Noun kClearConfsVerb;

} // namespace cli::wifi
