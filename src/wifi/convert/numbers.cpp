// SPDX-License-Identifier: MIT
// Numbers and switches of the Wi-Fi pages: limits, numberings, percentages, frequencies.
#include "caltofal.h"
#include "frame/text.h"
#include "wifi/convert/wrap.h"

#include <cstring>

using namespace frame;
using namespace wifi;

namespace {

constexpr int kFirstSsidOfRadio1 = 1;
constexpr int kFirstSsidOfOthers = 9;

int firstSsid(int radio) {
    return radio == 1 ? kFirstSsidOfRadio1 : kFirstSsidOfOthers;
}

int inRangeOr(int otherwise, int value, int minimum, int maximum) {
    return value >= minimum && value <= maximum ? value : otherwise;
}

bool isTrue(int flag) {
    return static_cast<uint8_t>(flag) != 0;
}

struct PowerLevel {
    char word[8];
    char percent[4];
};

// In the order of ConvTransmitPower()'s answers, which count from 1.
constexpr PowerLevel kPowerLevels[] = {{"high", "100"}, {"medium", "50"}, {"low", "25"}};

} // namespace

int ConvInt(const char *text) {
    return number(text);
}

int ConvStrToBool(const char *text) {
    return strcmp(text, "true") == 0 || strcmp(text, "1") == 0 ? 1 : 0;
}

const char *ConvBoolToStr(int flag) {
    return isTrue(flag) ? "true" : "false";
}

int ConvMacACLModeToUI(const char *text) {
    return strcmp(text, "Allow") == 0 ? 1 : 0;
}

const char *ConvMacACLModeToFapi(int enabled, int allow) {
    if (!isTrue(enabled)) {
        return "Disabled";
    }
    return allow != 0 ? "Allow" : "Deny";
}

int ConvSsidIdxToUI(int radio, int index) {
    return wrappingAdd(index, -firstSsid(radio));
}

int ConvSsidIdxToFapi(int radio, int index) {
    return wrappingAdd(index, firstSsid(radio));
}

int ConvBeaconInterval(int value) {
    return inRangeOr(100, value, 50, 1000);
}

int ConvDtimInterval(int value) {
    return inRangeOr(1, value, 1, 100);
}

int ConvFragmentationThreshold(int value) {
    return inRangeOr(2346, value, 1000, 2346);
}

// Reaches one byte further than the fragmentation threshold, with the same default.
int ConvRtsThreshold(int value) {
    return inRangeOr(2346, value, 1000, 2347);
}

int ConvTransmitPower(int percent) {
    if (percent > 50) {
        return 1;
    }
    return percent > 25 ? 2 : 3;
}

const char *TransmitPower_ConvStr(const char *text, int direction) {
    if (!text) {
        return nullptr;
    }
    if (direction == 1) {
        return kPowerLevels[ConvTransmitPower(number(text)) - 1].word;
    }
    for (const PowerLevel &level : kPowerLevels) {
        if (beginsWith(level.word, text)) {
            return level.percent;
        }
    }
    return kPowerLevels[0].percent;
}

int ConvFreqChannel(int frequencyMHz) {
    if (frequencyMHz == 2484) {
        return 14;
    }
    if (frequencyMHz < 2484) {
        return wrappingAdd(frequencyMHz, -2407) / 5;
    }
    if (frequencyMHz >= 4910 && frequencyMHz <= 4980) {
        return (frequencyMHz - 4000) / 5;
    }
    if (frequencyMHz <= 45000) {
        return (frequencyMHz - 5000) / 5;
    }
    if (frequencyMHz >= 58320 && frequencyMHz <= 64800) {
        return (frequencyMHz - 56160) / 2160;
    }
    return 0;
}
