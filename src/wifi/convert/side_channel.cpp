// SPDX-License-Identifier: MIT
// On which side the secondary channel of a 40 MHz network lies at 2.4 GHz.
#include "caltofal.h"
#include "frame/text.h"

using namespace frame;

namespace {

constexpr int kFirstChannelWithRoomBelow = 5;

// The last channel that has room above it.
int lastChannelWithRoomAbove(const char *countryCode) {
    if (beginsWith(countryCode, "US")) {
        return 7;
    }
    return beginsWith(countryCode, "JP") ? 10 : 9;
}

} // namespace

const char *GetSideChannel(int channel, const char *countryCode, const char *fallback) {
    if (channel < kFirstChannelWithRoomBelow) {
        return "AboveControlChannel";
    }
    return channel > lastChannelWithRoomAbove(countryCode) ? "BelowControlChannel" : fallback;
}
