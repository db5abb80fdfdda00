// SPDX-License-Identifier: MIT
#include "caltofal/commands.h"

#include "caltofal/command.h"
#include "pages/wifi/pages.h"

namespace cli {
namespace {

using namespace wifi;

Run define(CLI::App &command) {
    static constexpr const Noun *kVerbs[] = {
        &kRadiosVerb,  &kRadioVerb,    &kSsidsVerb,   &kSsidVerb, &kSetVerb,    &kChannelsVerb,
        &kChannelVerb, &kStationsVerb, &kClientsVerb, &kAclVerb,  &kScanVerb,   &kSurveyVerb,
        &kWpsVerb,     &kEndpointVerb, &kConvertVerb, &kHexVerb,  &kEscapeVerb, &kClearConfsVerb,
    };
    return defineVerbs(command, "caltofal wifi", kVerbs);
}

} // namespace

const Noun kWifiNoun = {"wifi", "Radios, SSIDs, stations, surveys, WPS, end points", "radios\nssid 1\nstations wlan2",
                        define};

} // namespace cli
